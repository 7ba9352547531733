#include "filter/structure_run.h"

#include "filter/filter_context.h"
#include "filter/filter_run.h"

#include <algorithm>
#include <iterator>

namespace quelvarn {

// The status condition is no part of this filter: the rows are limited by what the table was opened with alone.
bool ApplyStructureFilter(FilterContext& context)
{
    if (context.state().FilterAnzahl > STEP_COUNT)
        return false;
    return runOrKeep(context, [&] {
        TypeFilter& state = context.state();
        state.FilterString.clear();
        const auto chain = formChain(state, [](const FilterStep& step, int) { return structureFragment(step); });
        return chain.empty() || runChain(context, chain, {});
    });
}

// Lists and orders go by FilterString, which knows nothing of the main values.
bool ApplyHauptwertFilter(FilterContext& context)
{
    const TypeFilter& state = context.state();
    RowFilter filter{state.FilterString + mainValueFragments(state.HauptwertBereich, !state.FilterString.empty())};
    if (SharedCondition condition = filterCondition(state.FilterString))
        filter.conditions.push_back(std::move(condition));
    std::ranges::move(mainValueConditions(state.HauptwertBereich), std::back_inserter(filter.conditions));
    return runOrKeep(context, [&] { return setFilter(context, std::move(filter)); });
}

} // namespace quelvarn
