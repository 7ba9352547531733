#pragma once

#include "database/schema.h"
#include "database/value.h"
#include "tools/import/reader_protocol.h"

#include <string_view>

namespace quelvarn::tools {

// The cell as a value of this type. Where it does not fit, Null, and `reason` says why.
Value asValue(const Cell& cell, FieldType type, std::string_view& reason);

} // namespace quelvarn::tools
