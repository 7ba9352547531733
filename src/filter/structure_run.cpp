#include "filter/execution.h"
#include "filter/filter_run.h"

#include <algorithm>
#include <iterator>

namespace quelvarn {

// The status condition is no part of this filter: the rows are limited by what the table was opened with alone.
bool ApplyStructureFilter(Filterkontext& kontext)
{
    if (kontext.zustand().FilterAnzahl > ANZAHL_SCHRITTE)
        return false;
    return laufeOderWieVorher(kontext, [&] {
        Filterzustand& zustand = kontext.zustand();
        zustand.FilterString.clear();
        const auto kette =
            bildeKette(zustand, [](const FilterSchritt& schritt, int) { return strukturfragment(schritt); });
        return kette.empty() || laufeKette(kontext, kette, {});
    });
}

// Lists and orders go by FilterString, which knows nothing of the main values.
bool ApplyHauptwertFilter(Filterkontext& kontext)
{
    const Filterzustand& zustand = kontext.zustand();
    RowFilter filter{zustand.FilterString +
                     HauptwertFragmente(zustand.HauptwertBereich, !zustand.FilterString.empty())};
    if (SharedCondition condition = filterCondition(zustand.FilterString))
        filter.conditions.push_back(std::move(condition));
    std::ranges::move(mainValueConditions(zustand.HauptwertBereich), std::back_inserter(filter.conditions));
    return laufeOderWieVorher(kontext, [&] { return setzeFilter(kontext, std::move(filter)); });
}

} // namespace quelvarn
