#include "filter/execution.h"

namespace quelvarn {

Statusbedingung vergissFilter(FilterState& filter, int tab)
{
    leereFilter(filter.typen[static_cast<std::size_t>(tab)]);
    return filter.status;
}

void ResetAllFilters(Filterkontext& kontext)
{
    for (int tab = 0; tab < ANZAHL_DOKUTYPEN; ++tab) {
        vergissFilter(kontext.filter, tab);
        kontext.tabellen.filterAufheben(tab);
    }
}

} // namespace quelvarn
