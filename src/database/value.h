#pragma once

#include "base/date_time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace quelvarn {

enum class FieldType { Text, Integer, FloatingPoint, Date };

// One cell. Null and the empty text are two things.
using Value = std::variant<std::monostate, std::int64_t, double, std::string, DateTime>;

inline bool isNull(const Value& value)
{
    return std::holds_alternative<std::monostate>(value);
}

// As the database turns a value into text: German decimal comma and date; Null gives "".
std::string asText(const Value& value);
// Null and texts that are no number give 0.
double asNumber(const Value& value);
std::int64_t asInteger(const Value& value);
// A number in this range, after rounding; nothing for every other and for what is no number.
std::optional<std::int64_t> wholeNumber(const Value& value, std::int64_t lowest, std::int64_t highest);
// True for numbers and for texts that read as one.
bool isNumeric(const Value& value);
// Null and what is no date give day 0.
DateTime asDate(const Value& value);

} // namespace quelvarn
