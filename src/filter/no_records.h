#pragma once

#include "filter/filter_context.h"

namespace quelvarn {

// Tells that this step, counted from 1, leaves no rows.
void ReportNoRecords(FilterContext& context, int step);
// The same for each such step of the run before, once.
void reportStepsWithoutRows(FilterContext& context);

} // namespace quelvarn
