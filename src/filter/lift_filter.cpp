#include "filter/execution.h"

namespace quelvarn {

StatusCondition forgetFilter(FilterState& filter, int tab)
{
    leereFilter(filter.typen[static_cast<std::size_t>(tab)]);
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

void ResetAllFilters(Filterkontext& kontext)
{
    for (int tab = 0; tab < ANZAHL_DOKUTYPEN; ++tab)
        liftFilter(kontext.filter, kontext.tables, tab);
}

} // namespace quelvarn
