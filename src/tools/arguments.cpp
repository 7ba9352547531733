#include "tools/arguments.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <system_error>

namespace quelvarn::tools {

Arguments::Arguments(std::span<const std::string> words, std::span<const Option> known)
{
    bool onlyPositions = false; // Behind "--".
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (onlyPositions || !word.starts_with("--")) {
            positions_.push_back(word);
            continue;
        }
        if (word == "--") {
            onlyPositions = true;
            continue;
        }
        const auto equal = word.find('=');
        const std::string name = word.substr(0, equal);
        const auto option = std::ranges::find(known, name, &Option::name);
        if (option == known.end())
            throw UsageFault(fmt::format("Unbekannte Option: {}", name));
        if (option->value == OptionValue::Nobody && equal != std::string::npos)
            throw UsageFault(fmt::format("Die Option {} hat keinen Wert.", name));
        std::string value;
        if (option->value == OptionValue::Needed) {
            if (equal == std::string::npos && i + 1 == words.size())
                throw UsageFault(fmt::format("Der Option {} fehlt ihr Wert.", name));
            value = equal != std::string::npos ? word.substr(equal + 1) : words[++i];
        }
        if (!values_.emplace(name, std::move(value)).second)
            throw UsageFault(fmt::format("Die Option {} steht zweimal da.", name));
    }
}

std::optional<std::string> Arguments::findValue(std::string_view option) const
{
    const auto found = values_.find(option);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::int64_t> Arguments::findNumber(std::string_view option, std::int64_t smallest,
                                                  std::int64_t greatest) const
{
    const auto text = findValue(option);
    if (!text)
        return std::nullopt;
    const auto number = parseInteger(*text);
    if (!number || *number < smallest || *number > greatest)
        throw UsageFault(
            fmt::format("{} braucht eine ganze Zahl von {} bis {}, nicht '{}'.", option, smallest, greatest, *text));
    return number;
}

std::optional<std::int64_t> parseInteger(std::string_view text)
{
    std::int64_t number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

} // namespace quelvarn::tools
