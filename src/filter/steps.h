#pragma once

#include "filter/filter_context.h"

#include <string_view>

namespace quelvarn {

// Appends a step with its row; the code follows from the field and the operator (0 ">= ", 1 "= ", 2 "<= "). A step too
// many shows its box and leaves FilterAnzahl at ALL_FILLED.
void AddFilterStep(FilterContext& context, std::string_view value, std::string_view Feldname, int Operator,
                   RowName row = {});
void ClearFilterSteps(TypeFilter& state);
void ClearHauptwertBereich(TypeFilter& state);
void SaveFilterState(TypeFilter& state);
void RestoreFilterState(TypeFilter& state);
// Everything that was collected for one type; the ticked statuses stay, and what its table shows.
void clearFilter(TypeFilter& state);

} // namespace quelvarn
