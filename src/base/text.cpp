#include "base/text.h"

#include "base/collation.h"
#include "base/utf8.h"

#include <algorithm>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <utility>

namespace quelvarn {

std::string_view trim(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view trimRightBlanks(std::string_view text)
{
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to)
{
    std::string result;
    std::size_t position = 0;
    while (!from.empty()) {
        const std::size_t found = text.find(from, position);
        if (found == std::string_view::npos)
            break;
        result.append(text, position, found - position).append(to);
        position = found + from.size();
    }
    return result.append(text.substr(position));
}

std::vector<std::string> split(std::string_view text, char separator)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (true) {
        const std::size_t end = text.find(separator, start);
        parts.emplace_back(text.substr(start, end - start));
        if (end == std::string_view::npos)
            return parts;
        start = end + 1;
    }
}

std::string join(const std::vector<std::string>& parts, std::string_view separator)
{
    return fmt::format("{}", fmt::join(parts, separator));
}

std::string lines(std::initializer_list<std::string_view> lines)
{
    return fmt::format("{}", fmt::join(lines, "\n"));
}

bool startsWithIgnoringCase(std::string_view text, std::string_view start)
{
    return foldCase(leftCharacters(text, countCharacters(start))) == foldCase(start);
}

void SortiereTexte(std::vector<std::string>& texts)
{
    std::vector<std::pair<std::string, std::string>> sorted;
    sorted.reserve(texts.size());
    for (std::string& text : texts) {
        std::string upper = toUpper(text);
        sorted.emplace_back(std::move(upper), std::move(text));
    }
    std::sort(sorted.begin(), sorted.end());
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = std::move(sorted[i].second);
}

std::string FeldGleichWert(std::string_view field, std::string_view value)
{
    return fmt::format("{} = '{}'", field, value);
}

std::string NameLike(std::string_view field, std::string_view text)
{
    const bool fileField = field == "Dateiname" || field == "filename";
    return fmt::format("{} Like '{}'", fileField ? field : "DokuBez", text);
}

std::string NameLikeNichtLeer(std::string_view field, std::string_view text)
{
    return text.empty() ? std::string() : NameLike(field, text);
}

} // namespace quelvarn
