#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

// The command line cannot be understood; the caller's mistake, not a fault.
class UsageFault : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

enum class OptionValue { Nobody, Needed };

// An option of a command, "--name" or "--name WERT" (also "--name=WERT").
struct Option
{
    std::string_view name; // with its dashes
    OptionValue value = OptionValue::Nobody;
};

// The words behind a command, sorted into positions and options.
class Arguments
{
public:
    // Throws UsageFault for an unknown option, a missing value or one too many.
    Arguments(std::span<const std::string> words, std::span<const Option> known);

    std::size_t count() const { return positions_.size(); }
    const std::string& position(std::size_t number) const { return positions_.at(number); }
    bool set(std::string_view option) const { return values_.contains(option); }
    std::optional<std::string> findValue(std::string_view option) const;
    // A whole number from `smallest` to `greatest`; throws UsageFault for anything else.
    std::optional<std::int64_t> findNumber(std::string_view option, std::int64_t smallest, std::int64_t greatest) const;

private:
    std::vector<std::string> positions_;
    std::map<std::string, std::string, std::less<>> values_;
};

// The whole text as a number; nothing when it is none.
std::optional<std::int64_t> parseInteger(std::string_view text);

} // namespace quelvarn::tools
