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

void showAllRows(Filterkontext& kontext)
{
    vergissFilter(kontext.filter, kontext.tab);
    kontext.tabellen.filterAufheben(kontext.tab);
}

bool laufeStruktur(Filterkontext& kontext)
{
    return laufeOderWieVorher(kontext, [&] {
        return ApplyStructureFilter(kontext) && (!kontext.zustand().HauptwertAktiv || ApplyHauptwertFilter(kontext));
    });
}

bool laufe(Filterkontext& kontext)
{
    switch (kontext.bereich()) {
    case Filterbereich::Eigenschaften:
        return ApplyPropertyFilter(kontext);
    case Filterbereich::Struktur:
        return laufeStruktur(kontext);
    case Filterbereich::BenutzDef:
        return kontext.zustand().FilterAnzahl > 0 && ApplyBenutzDefFilter(kontext);
    }
    return false;
}

} // namespace

void FilterEigenMerkBenutzDef(Filterkontext& kontext)
{
    if (nothingChosen(kontext))
        return showAllRows(kontext);
    kontext.stepsWithoutRows.clear();
    std::vector<Filterwert> rows = kontext.FilterWerteTabelle(); // Also those of steps that leave nothing.
    if (!laufe(kontext))
        return;
    GefilterteTabelle& tabelle = kontext.tabelle();
    const bool eigenesErgebnis = kontext.bereich() == Filterbereich::BenutzDef;
    if (!eigenesErgebnis)
        tabelle.FilterErgebnis = Recordset();
    tabelle.zustand = eigenesErgebnis ? Filterergebnis : Gefiltert;
    tabelle.filterBeschreibung.clear();
    kontext.zustand().Schnellfilter.clear();
    tabelle.gezeigteWerte = std::move(rows);
    // Structure features and user-defined properties know no limit of the statuses.
    tabelle.statusLimit = kontext.bereich() == Filterbereich::Eigenschaften ? kontext.filter.status : StatusLimit{};
    kontext.tabellen.filterGewechselt(kontext.tab);
    reportStepsWithoutRows(kontext);
}

} // namespace quelvarn
