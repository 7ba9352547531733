#include "filter/execution.h"
#include "filter/filter_run.h"

#include <utility>

namespace quelvarn {
namespace {

// The status condition alone is a filter of the properties.
bool nothingChosen(const Filterkontext& kontext)
{
    const Filterzustand& zustand = kontext.zustand();
    return zustand.FilterAnzahl == 0 && zustand.BenutzDefAnzahl() == 0 && !zustand.HauptwertAktiv &&
           (kontext.bereich() != Filterbereich::Eigenschaften || kontext.filter.status.StatusFilter.empty());
}

bool laufeStruktur(Filterkontext& kontext)
{
    return laufeOderWieVorher(kontext, [&] {
        return ApplyStructureFilter(kontext) && (!kontext.zustand().HauptwertAktiv || ApplyHauptwertFilter(kontext));
    });
}

// False when nothing was applied.
bool run(Filterkontext& kontext)
{
    Narrowing narrowing{kontext.FilterWerteTabelle(), {}, {}}; // Also the values of steps that leave nothing.
    switch (kontext.bereich()) {
    case Filterbereich::Eigenschaften:
        if (!ApplyPropertyFilter(kontext))
            return false;
        narrowing.statusLimit = kontext.filter.status; // The other parts know no limit of the statuses.
        break;
    case Filterbereich::Struktur:
        if (!laufeStruktur(kontext))
            return false;
        break;
    case Filterbereich::BenutzDef: {
        auto result = kontext.zustand().FilterAnzahl > 0 ? ApplyBenutzDefFilter(kontext) : std::nullopt;
        if (!result)
            return false;
        kontext.table().showResult(std::move(*result), std::move(narrowing));
        return true;
    }
    }
    kontext.table().showFiltered(std::move(narrowing));
    return true;
}

} // namespace

void FilterEigenMerkBenutzDef(Filterkontext& kontext)
{
    if (nothingChosen(kontext))
        return liftFilter(kontext.filter, kontext.tables, kontext.tab);
    kontext.stepsWithoutRows.clear();
    if (!run(kontext))
        return;
    kontext.zustand().Schnellfilter.clear();
    kontext.tables.announceRows(kontext.tab);
    reportStepsWithoutRows(kontext);
}

} // namespace quelvarn
