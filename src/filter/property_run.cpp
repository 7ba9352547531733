#include "filter/property_run.h"

#include "filter/filter_context.h"
#include "filter/filter_run.h"
#include "session/error_report.h"

namespace quelvarn {
namespace {

constexpr int STEPS_WITHOUT_STRUCTURE = 5;

} // namespace

bool ApplyPropertyFilter(FilterContext& context)
{
    TypeFilter& state = context.state();
    const StatusCondition& status = context.filter.status;
    if (state.FilterAnzahl > STEPS_WITHOUT_STRUCTURE)
        return false;
    if (state.FilterSchritte[0].value.empty() && status.StatusFilter.empty())
        return false; // An empty filter changes no rows.
    return runOrKeep(context, [&] {
        std::vector<ChainLink> chain;
        if (!guarded(context.ports().boxes, "Erstellen Filterstring", "Fehler beim Erstellen Filterstring!",
                     [&] { chain = formChain(state, stepFragment); }))
            return false;
        if (!chain.empty())
            return runChain(context, chain, status);
        state.FilterString.clear();
        return setFilter(context, ChainLink().behind(status));
    });
}

} // namespace quelvarn
