#include "filter/filter_run.h"

#include "database/sql/conditions.h"
#include "filter/filter_context.h"
#include "platform/progress.h"

#include <functional>
#include <optional>
#include <utility>

namespace quelvarn {

std::string withAnd(std::string_view left, std::string_view right)
{
    const std::string_view between = left.empty() || right.empty() ? "" : " AND ";
    return std::string(left).append(between).append(right);
}

std::vector<ChainLink> formChain(const TypeFilter& state, const FragmentMaker& fragment)
{
    std::vector<ChainLink> chain;
    ChainLink soFar;
    for (int number = 0; number < state.FilterAnzahl; ++number) {
        const StepFragment added = fragment(state.FilterSchritte[static_cast<std::size_t>(number)], number);
        soFar.filterForm = withAnd(soFar.filterForm, added.filterForm);
        soFar.sqlForm = withAnd(soFar.sqlForm, added.sqlForm);
        if (added.condition)
            soFar.conditions.push_back(added.condition);
        chain.push_back(soFar);
    }
    return chain;
}

RowFilter ChainLink::behind(const StatusCondition& status) const
{
    RowFilter filter{withAnd(status.StatusFilter, filterForm)};
    if (SharedCondition scope = sql::statusScope(status.StatusFilterWhere))
        filter.conditions.push_back(std::move(scope));
    filter.conditions.insert(filter.conditions.end(), conditions.begin(), conditions.end());
    return filter;
}

bool setFilter(FilterContext& context, RowFilter filter)
{
    LongWork work(context.ports().progress, "Die Tabelle wird gefiltert ...");
    context.table().rows().Filter(std::move(filter), std::ref(work));
    return !work.abandoned();
}

bool runChain(FilterContext& context, const std::vector<ChainLink>& chain, const StatusCondition& status)
{
    TypeFilter& state = context.state();
    const Recordset& rows = context.table().rows();
    context.stepsWithoutRows.clear();
    auto step = static_cast<int>(chain.size());
    for (;; --step) {
        const ChainLink& link = chain[static_cast<std::size_t>(step - 1)];
        if (!setFilter(context, link.behind(status)))
            return false;
        state.FilterAnzahl = step;
        state.FilterString = link.sqlForm;
        // A single step may leave an empty table.
        if (chain.size() == 1 || rows.RecordCount() > 0)
            return true;
        context.stepsWithoutRows.push_back(step);
        if (step == 1)
            return true;
    }
}

bool runOrKeep(FilterContext& context, const std::function<bool()>& run)
{
    const TypeFilter before = context.state();
    Recordset& table = context.table().rows();
    const RowFilter filter = table.filter();
    const auto row = table.bof() || table.eof() ? std::nullopt : std::optional(table.bookmark());
    const auto moveBack = [&] {
        context.state() = before;
        if (table.filter().text != filter.text)
            table.Filter(filter);
        if (row)
            table.setBookmark(*row);
    };
    bool ran = false;
    try {
        ran = run();
    } catch (...) {
        moveBack();
        throw;
    }
    if (!ran)
        moveBack();
    return ran;
}

} // namespace quelvarn
