#include "database/sql/column_value.h"

#include "base/number_format.h"
#include "base/runtime_error.h"
#include "database/sql/renderer.h"

#include <cmath>
#include <fmt/format.h>

namespace quelvarn::sql {
namespace {

// As an integer where it is one: an index of an integer column serves no fractions.
Value plain(double number)
{
    constexpr double exactlyUntil = 9007199254740992.0; // 2^53
    if (number == std::trunc(number) && std::abs(number) <= exactlyUntil)
        return static_cast<std::int64_t>(number);
    return number;
}

std::optional<Value> findNumber(const Value& value)
{
    if (const auto* number = std::get_if<double>(&value))
        return plain(*number);
    if (const auto* time = std::get_if<DateTime>(&value))
        return plain(time->asDays());
    if (const auto* text = std::get_if<std::string>(&value)) {
        const auto number = parseNumber(*text);
        return number ? std::optional(plain(*number)) : std::nullopt;
    }
    return value;
}

std::optional<Value> findDate(const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        const auto german = parseDate(*text);
        const auto time = german ? german : parseIso(*text);
        return time ? std::optional<Value>(*time) : std::nullopt;
    }
    if (std::holds_alternative<DateTime>(value))
        return value;
    return DateTime::fromDays(asNumber(value));
}

} // namespace

std::optional<Value> comparisonValue(const Value& literal, FieldType type)
{
    if (type == FieldType::Text)
        return asText(literal);
    return type == FieldType::Date ? findDate(literal) : findNumber(literal);
}

Value storedValue(const Value& value, FieldType type)
{
    if (isNull(value))
        return value;
    const auto fitting = comparisonValue(value, type);
    if (!fitting)
        throw RuntimeError(FAULT_DATA_TYPE, "Datenbank",
                           "Datentypenkonflikt: '" + asText(value) + "' passt nicht zum Datentyp des Feldes.");
    if (type == FieldType::Integer)
        return asInteger(*fitting);
    return type == FieldType::FloatingPoint ? Value(asNumber(*fitting)) : *fitting;
}

std::string parameterText(const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return fmt::to_string(*whole);
    if (const auto* number = std::get_if<double>(&value))
        return fmt::to_string(*number);
    if (const auto* time = std::get_if<DateTime>(&value))
        return formatIso(*time);
    return {};
}

} // namespace quelvarn::sql
