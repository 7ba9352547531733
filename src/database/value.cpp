#include "database/value.h"

#include "base/number_format.h"

#include <cmath>
#include <limits>

namespace quelvarn {
namespace {

// Dates that the database can hold: the years 100 to 9999, in days.
constexpr double firstDay = -657434;
constexpr double lastDay = 2958466;

std::int64_t rounded(double number)
{
    constexpr double limit = 9.2e18;
    if (std::isnan(number))
        return 0;
    if (std::abs(number) > limit)
        return number < 0 ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
    return std::llrint(number); // Halves go to the even neighbour.
}

std::optional<DateTime> dateFromDays(double days)
{
    if (days >= firstDay && days < lastDay)
        return DateTime::fromDays(days);
    return std::nullopt;
}

std::optional<DateTime> findDate(const Value& value)
{
    if (const auto* time = std::get_if<DateTime>(&value))
        return *time;
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return dateFromDays(static_cast<double>(*whole));
    if (const auto* number = std::get_if<double>(&value))
        return dateFromDays(*number);
    if (const auto* text = std::get_if<std::string>(&value)) {
        const auto german = parseDate(*text);
        return german ? german : parseIso(*text);
    }
    return std::nullopt;
}

} // namespace

std::string asText(const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return std::to_string(*whole);
    if (const auto* number = std::get_if<double>(&value))
        return numberAsText(*number);
    if (const auto* time = std::get_if<DateTime>(&value))
        return asText(*time);
    return {};
}

double asNumber(const Value& value)
{
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*whole);
    if (const auto* number = std::get_if<double>(&value))
        return *number;
    if (const auto* text = std::get_if<std::string>(&value))
        return parseNumber(*text).value_or(0);
    if (const auto* time = std::get_if<DateTime>(&value))
        return time->asDays();
    return 0;
}

std::int64_t asInteger(const Value& value)
{
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return *whole;
    return rounded(asNumber(value));
}

std::optional<std::int64_t> wholeNumber(const Value& value, std::int64_t lowest, std::int64_t highest)
{
    const std::int64_t number = asInteger(value);
    return isNumeric(value) && number >= lowest && number <= highest ? std::optional(number) : std::nullopt;
}

bool isNumeric(const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value))
        return isNumber(*text);
    return std::holds_alternative<std::int64_t>(value) || std::holds_alternative<double>(value);
}

DateTime asDate(const Value& value)
{
    return findDate(value).value_or(DateTime{});
}

} // namespace quelvarn
