#pragma once

#include "filter/filter_context.h"

#include <optional>

namespace quelvarn {

// The rows of the user-defined filter; nothing when it was given up.
std::optional<Recordset> ApplyBenutzDefFilter(FilterContext& context);

} // namespace quelvarn
