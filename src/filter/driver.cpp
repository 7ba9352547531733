#include "filter/execution.h"
#include "filter/filter_run.h"

namespace quelvarn {
namespace {

bool laufe(Filterkontext& kontext)
{
    switch (kontext.bereich) {
    case Filterbereich::Eigenschaften:
        return ApplyPropertyFilter(kontext);
    case Filterbereich::Struktur:
        return laufeOderWieVorher(kontext, [&] {
            return ApplyStructureFilter(kontext) &&
                   (!kontext.zustand().HauptwertAktiv || ApplyHauptwertFilter(kontext));
        });
    case Filterbereich::BenutzDef:
        return ApplyBenutzDefFilter(kontext);
    }
    return false;
}

} // namespace

void FilterEigenMerkBenutzDef(Filterkontext& kontext)
{
    if (!laufe(kontext))
        return;
    GefilterteTabelle& tabelle = kontext.tabelle();
    const bool eigenesErgebnis = kontext.bereich == Filterbereich::BenutzDef;
    if (!eigenesErgebnis)
        tabelle.FilterErgebnis = Recordset();
    tabelle.zustand = eigenesErgebnis ? Filterergebnis : Gefiltert;
    kontext.zustand().gezeigteWerte = kontext.FilterWerteTabelle;
    tabelle.filterListeGefuellt = !kontext.FilterWerteTabelle.empty();
    kontext.tabellen.filterGewechselt(kontext.tab);
}

} // namespace quelvarn
