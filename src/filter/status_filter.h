#pragma once

#include "filter/filter_state.h"

namespace quelvarn {

// The status condition of the ticked boxes; ticks those between the limits.
void BuildStatusFilter(FilterState& filter, int tab);

} // namespace quelvarn
