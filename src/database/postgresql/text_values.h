#pragma once

#include "database/value.h"

#include <optional>
#include <string>
#include <string_view>

namespace quelvarn::postgresql {

// What the server wrote, by the column's type; a text that does not fit it as it is.
Value fromServerText(std::string_view text, FieldType type);
std::optional<std::int64_t> integerFrom(std::string_view text);
std::optional<double> floatingPointFrom(std::string_view text);
// The server's type name.
FieldType fieldTypeFrom(std::string_view typeName);

} // namespace quelvarn::postgresql
