#pragma once

#include "filter/filter_context.h"

#include <optional>
#include <string>
#include <string_view>

namespace quelvarn {

// --- steps ---
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

// The status condition of the ticked boxes; ticks those between the limits.
void BuildStatusFilter(FilterState& filter, int tab);

// --- runs; faults pass through and leave rows and filter as they were ---
// The driver: runs the part of the page in front and shows what is left. With nothing chosen the filter that was there
// is lifted. Nothing changes when the run is given up.
void FilterEigenMerkBenutzDef(FilterContext& context);
// Each false when nothing was applied: given up, nothing chosen, refused because all steps are filled, or a step that
// cannot be told as a condition, which shows its own box.
bool ApplyPropertyFilter(FilterContext& context);
bool ApplyStructureFilter(FilterContext& context);
bool ApplyHauptwertFilter(FilterContext& context);
// The rows of the user-defined filter; nothing when it was given up.
std::optional<Recordset> ApplyBenutzDefFilter(FilterContext& context);
// Tells that this step, counted from 1, leaves no rows.
void ReportNoRecords(FilterContext& context, int step);
// The same for each such step of the run before, once.
void reportStepsWithoutRows(FilterContext& context);
// Forgets the filter of a type and hands out the status condition, which stays.
StatusCondition forgetFilter(FilterState& filter, int tab);
// Forgets it and shows all rows of its table again, as far as the status condition leaves them. A table that is not
// open stays so.
void liftFilter(FilterState& filter, DocumentTables& tables, int tab);
// Every loaded table goes back to its status filter.
void ResetAllFilters(FilterContext& context);

} // namespace quelvarn
