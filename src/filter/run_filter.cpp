#include "filter/run_filter.h"

#include "filter/filter_context.h"
#include "filter/filter_run.h"
#include "filter/lift_filter.h"
#include "filter/no_records.h"
#include "filter/property_run.h"
#include "filter/structure_run.h"
#include "filter/user_defined_run.h"

#include <utility>

namespace quelvarn {
namespace {

// The status condition alone is a filter of the properties.
bool nothingChosen(const FilterContext& context)
{
    const TypeFilter& state = context.state();
    return state.FilterAnzahl == 0 && state.BenutzDefAnzahl() == 0 && !state.HauptwertAktiv &&
           (context.section() != FilterSection::Properties || context.filter.status.StatusFilter.empty());
}

bool runStructure(FilterContext& context)
{
    return runOrKeep(context, [&] {
        return ApplyStructureFilter(context) && (!context.state().HauptwertAktiv || ApplyHauptwertFilter(context));
    });
}

// False when nothing was applied.
bool run(FilterContext& context)
{
    Narrowing narrowing{context.FilterWerteTabelle(), {}, {}}; // Also the values of steps that leave nothing.
    switch (context.section()) {
    case FilterSection::Properties:
        if (!ApplyPropertyFilter(context))
            return false;
        narrowing.statusLimit = context.filter.status; // The other parts know no limit of the statuses.
        break;
    case FilterSection::Structure:
        if (!runStructure(context))
            return false;
        break;
    case FilterSection::UserDefined: {
        auto result = context.state().FilterAnzahl > 0 ? ApplyBenutzDefFilter(context) : std::nullopt;
        if (!result)
            return false;
        context.table().showResult(std::move(*result), std::move(narrowing));
        return true;
    }
    }
    context.table().showFiltered(std::move(narrowing));
    return true;
}

} // namespace

void FilterEigenMerkBenutzDef(FilterContext& context)
{
    if (nothingChosen(context))
        return liftFilter(context.filter, context.tables, context.tab);
    context.stepsWithoutRows.clear();
    if (!run(context))
        return;
    context.state().QuickFilter.clear();
    context.tables.announceRows(context.tab);
    reportStepsWithoutRows(context);
}

} // namespace quelvarn
