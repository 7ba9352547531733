#pragma once

#include "database/value.h"

#include <optional>
#include <string>

namespace quelvarn::sql {

// A literal as a column of this type is compared with it: texts that read as a number or date become one, numbers and
// dates beside a text column become text. Nothing when they cannot be compared. Null is not handed in.
std::optional<Value> comparisonValue(const Value& literal, FieldType type);

// A value as it is written into a column of this type; RuntimeError when it does not fit.
Value storedValue(const Value& value, FieldType type);

// A value as a driver reads it from a text, whatever the column: decimal point, ISO date; "" for Null.
std::string parameterText(const Value& value);

} // namespace quelvarn::sql
