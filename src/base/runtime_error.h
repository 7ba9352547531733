#pragma once

#include <stdexcept>
#include <string>

namespace quelvarn {

// The one exception type for faults of the outside world: what went wrong, and where it came from.
class RuntimeError : public std::runtime_error
{
public:
    RuntimeError(int number, std::string source, const std::string& description);

    int number() const { return number_; }
    const std::string& source() const { return source_; }
    std::string description() const { return what(); }

private:
    int number_;
    std::string source_;
};

// Raised when a person chose to end the program in an error report; only the program's entry catches it.
class ProgramExit
{};

} // namespace quelvarn
