#pragma once

#include "filter/filter_context.h"

namespace quelvarn {

// Forgets the filter of a type and hands out the status condition, which stays.
StatusCondition forgetFilter(FilterState& filter, int tab);
// Forgets it and shows all rows of its table again, as far as the status condition leaves them. A table that is not
// open stays so.
void liftFilter(FilterState& filter, DocumentTables& tables, int tab);
// Every loaded table goes back to its status filter.
void ResetAllFilters(FilterContext& context);

} // namespace quelvarn
