#include "tools/import/conversion.h"

#include "base/number_format.h"
#include "base/text.h"
#include "tools/import/table_mapping.h"

#include <cmath>

namespace quelvarn::tools {

namespace {

constexpr std::string_view NO_NUMBER = "keine Zahl";
constexpr std::string_view NO_INTEGER = "keine ganze Zahl";
constexpr std::string_view NO_DATE = "kein Datum von 100 bis 9999";
constexpr std::string_view UNREADABLE = "in der Datei nicht lesbar";
constexpr std::string_view FREMD = "diese Art von Inhalt kennt das Register nicht";

// The first and the day behind the last that Access knows.
constexpr double FIRST_DAY = -657434;
constexpr double BEHIND_LAST_DAY = 2958466;
constexpr double INTEGER_LIMIT = 9007199254740992.0; // Up to here every whole number is exact.

Value date(double days, std::string_view& reason)
{
    if (std::isfinite(days) && days >= FIRST_DAY && days < BEHIND_LAST_DAY)
        return DateTime::fromDays(days);
    reason = NO_DATE;
    return {};
}

Value fromNumber(double number, FieldType type, std::string_view& reason)
{
    if (!std::isfinite(number)) {
        reason = NO_NUMBER;
        return {};
    }
    switch (type) {
    case FieldType::FloatingPoint:
        return number;
    case FieldType::Date:
        return date(number, reason);
    case FieldType::Text:
        return numberAsText(number);
    case FieldType::Integer:
        break;
    }
    if (number == std::floor(number) && std::abs(number) <= INTEGER_LIMIT)
        return static_cast<std::int64_t>(number);
    reason = NO_INTEGER;
    return {};
}

Value fromInteger(std::int64_t number, FieldType type, std::string_view& reason)
{
    if (type == FieldType::Integer)
        return number;
    if (type == FieldType::Text)
        return std::to_string(number);
    return fromNumber(static_cast<double>(number), type, reason);
}

Value fromDate(double days, FieldType type, std::string_view& reason)
{
    if (type == FieldType::Date)
        return date(days, reason);
    if (type != FieldType::Text)
        return fromNumber(days, type, reason);
    const Value value = date(days, reason);
    return isNull(value) ? Value{} : Value{asText(value)};
}

Value fromText(std::string_view text, FieldType type, std::string_view& reason)
{
    if (type == FieldType::Text) {
        if (text.find('\0') == std::string_view::npos)
            return std::string(text);
        std::string withoutNull(text);
        std::erase(withoutNull, '\0'); // No database keeps it inside a text.
        return withoutNull;
    }
    if (trim(text).empty())
        return {};
    if (type == FieldType::Date) {
        const auto time = parseDate(text);
        reason = time ? reason : NO_DATE;
        return time ? Value{*time} : Value{};
    }
    const auto number = parseNumber(text);
    if (number)
        return fromNumber(*number, type, reason);
    reason = NO_NUMBER;
    return {};
}

} // namespace

Value asValue(const Cell& cell, FieldType type, std::string_view& reason)
{
    switch (cell.kind) {
    case CellKind::Null:
        return {};
    case CellKind::Integer:
        return fromInteger(cell.integer, type, reason);
    case CellKind::FloatingPoint:
        return fromNumber(cell.floatingPoint, type, reason);
    case CellKind::Text:
        return fromText(cell.text, type, reason);
    case CellKind::Date:
        return fromDate(cell.floatingPoint, type, reason);
    case CellKind::Unreadable:
        reason = UNREADABLE;
        return {};
    case CellKind::Fremd:
        break;
    }
    reason = FREMD;
    return {};
}

} // namespace quelvarn::tools
