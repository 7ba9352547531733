#include "base/number_format.h"

#include "base/text.h"

#include <charconv>
#include <cmath>
#include <fmt/format.h>
#include <limits>
#include <system_error>

namespace quelvarn {
namespace {

// "-1234567" with a point after each group of three.
std::string withThousands(std::string digits)
{
    const std::size_t first = digits.starts_with('-') ? 1 : 0;
    for (std::size_t position = digits.size(); position > first + 3;) {
        position -= 3;
        digits.insert(position, 1, '.');
    }
    return digits;
}

// Rounds as on paper: a five goes up, also where the binary number lies a hair below it (2,675).
double rounded(double number, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    const double scaled = number * scale;
    if (!(std::fabs(scaled) < 1e15))
        return number;
    return std::round(scaled * (1 + 4 * std::numeric_limits<double>::epsilon())) / scale;
}

// A number that rounds to zero has no sign.
std::string fixed(double number, int decimals)
{
    number = rounded(number, decimals);
    std::string text = fmt::format("{:.{}f}", number, decimals);
    if (text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos)
        text.erase(0, 1);
    return text;
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

std::size_t countDigits(std::string_view text)
{
    std::size_t count = 0;
    while (count < text.size() && isDigit(text[count]))
        ++count;
    return count;
}

// Moves the digits before the comma from `text` to `target`; false when thousands marks stand where none belong.
bool takeWholePart(std::string_view& text, std::string& target)
{
    std::size_t digits = countDigits(text);
    const bool mayBeGrouped = digits >= 1 && digits <= 3;
    while (true) {
        target.append(text, 0, digits);
        text.remove_prefix(digits);
        if (!text.starts_with('.'))
            return true;
        text.remove_prefix(1);
        digits = countDigits(text);
        if (!mayBeGrouped || digits != 3)
            return false;
    }
}

} // namespace

std::string formatInteger(std::int64_t number)
{
    return withThousands(fmt::format("{}", number));
}

std::string formatComma(double number, int decimals)
{
    const std::string text = fixed(number, decimals);
    const std::size_t point = text.find('.');
    std::string result = withThousands(text.substr(0, point));
    if (point != std::string::npos)
        result.append(1, ',').append(text, point + 1);
    return result;
}

std::string formatSeconds(double seconds)
{
    return replaceAll(fixed(seconds, 1), ".", ",");
}

std::string numberAsText(double number)
{
    return replaceAll(replaceAll(fmt::format("{}", number), ".", ","), "e", "E");
}

std::optional<double> parseNumber(std::string_view text)
{
    text = trim(text);
    std::string number;
    if (text.starts_with('-') || text.starts_with('+')) {
        if (text.front() == '-')
            number = "-";
        text.remove_prefix(1);
    }
    const std::size_t sign = number.size();
    if (!takeWholePart(text, number))
        return std::nullopt;
    std::size_t digits = number.size() - sign;
    if (text.starts_with(',')) {
        text.remove_prefix(1);
        const std::size_t decimals = countDigits(text);
        number.append(digits == 0 ? "0." : ".").append(text, 0, decimals).append(decimals == 0 ? "0" : "");
        text.remove_prefix(decimals);
        digits += decimals;
    }
    if (digits == 0)
        return std::nullopt;
    if (text.starts_with('E') || text.starts_with('e'))
        number.append(text);
    else if (!text.empty())
        return std::nullopt;

    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error != std::errc() || end != number.data() + number.size())
        return std::nullopt;
    return value;
}

bool isNumber(std::string_view text)
{
    return parseNumber(text).has_value();
}

} // namespace quelvarn
