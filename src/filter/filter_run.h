#pragma once

#include "filter/filter_context.h"
#include "filter/fragments.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// The conditions of a chain up to and with one step.
struct ChainLink
{
    std::string filterForm;
    std::string sqlForm;
    std::vector<SharedCondition> conditions = {};

    // As a filter of the table, behind the status condition.
    RowFilter behind(const StatusCondition& status) const;
};

// What a step makes of its cells.
using FragmentMaker = std::function<StepFragment(const FilterStep& step, int number)>;

// Both joined with " AND " where both have text.
std::string withAnd(std::string_view left, std::string_view right);
// The steps up to FilterAnzahl, each joined with those before it.
std::vector<ChainLink> formChain(const TypeFilter& state, const FragmentMaker& fragment);
// Runs the last link; where it leaves no rows, which the context keeps to be told, the one before it runs. The status
// condition stands before each of them. False when it was given up.
bool runChain(FilterContext& context, const std::vector<ChainLink>& chain, const StatusCondition& status);
// Assigns a filter to the table. False when it was given up; the table is then as it was.
bool setFilter(FilterContext& context, RowFilter filter);
// Runs `run`. When it is false or a fault ends it, the rows shown and the state of the filter are as before.
bool runOrKeep(FilterContext& context, const std::function<bool()>& run);

} // namespace quelvarn
