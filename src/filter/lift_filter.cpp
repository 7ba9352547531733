#include "filter/lift_filter.h"

#include "filter/filter_context.h"
#include "filter/steps.h"

namespace quelvarn {

StatusCondition forgetFilter(FilterState& filter, int tab)
{
    clearFilter(filter.types[static_cast<std::size_t>(tab)]);
    return filter.status;
}

void liftFilter(FilterState& filter, DocumentTables& tables, int tab)
{
    const StatusCondition stays = forgetFilter(filter, tab);
    if (!tables[tab].isOpen())
        return;
    tables.showAll(tab, stays);
    tables.announceRows(tab);
}

void ResetAllFilters(FilterContext& context)
{
    for (int tab = 0; tab < DOCUMENT_TYPE_COUNT; ++tab)
        liftFilter(context.filter, context.tables, tab);
}

} // namespace quelvarn
