#pragma once

#include <stdexcept>
#include <string>

namespace quelvarn {

// The one exception type for faults of the outside world: what went wrong, and where it came from.
class Laufzeitfehler : public std::runtime_error
{
public:
    Laufzeitfehler(int nummer, std::string quelle, const std::string& beschreibung);

    int nummer() const { return nummer_; }
    const std::string& quelle() const { return quelle_; }
    std::string beschreibung() const { return what(); }

private:
    int nummer_;
    std::string quelle_;
};

// Raised when a person chose to end the program in an error report; only the program's entry catches it.
class ProgrammEnde
{};

} // namespace quelvarn
