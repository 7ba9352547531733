#pragma once

#include "filter/filter_context.h"

namespace quelvarn {

// False when nothing was applied: given up, nothing chosen, refused because all steps are filled, or a step that cannot
// be told as a condition, which shows its own box. Faults leave rows and filter as they were.
bool ApplyPropertyFilter(FilterContext& context);

} // namespace quelvarn
