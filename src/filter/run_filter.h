#pragma once

#include "filter/filter_context.h"

namespace quelvarn {

// Runs the part of the page in front and shows what is left. With nothing chosen the filter that was there is lifted.
// Nothing changes when the run is given up; faults pass through and leave rows and filter as they were.
void FilterEigenMerkBenutzDef(FilterContext& context);

} // namespace quelvarn
