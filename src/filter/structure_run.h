#pragma once

#include "filter/filter_context.h"

namespace quelvarn {

// Both false when nothing was applied: given up, or all steps are filled. Faults leave rows and filter as they were.
bool ApplyStructureFilter(FilterContext& context);
bool ApplyHauptwertFilter(FilterContext& context);

} // namespace quelvarn
