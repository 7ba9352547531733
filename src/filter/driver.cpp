#include "filter/execution.h"
#include "filter/filter_run.h"

namespace quelvarn {
namespace {

bool laufeStruktur(Filterkontext& kontext)
{
    if (kontext.zustand().FilterAnzahl == 0 && !kontext.zustand().HauptwertAktiv)
        return false;
    return laufeOderWieVorher(kontext, [&] {
        return ApplyStructureFilter(kontext) && (!kontext.zustand().HauptwertAktiv || ApplyHauptwertFilter(kontext));
    });
}

bool laufe(Filterkontext& kontext)
{
    switch (kontext.bereich) {
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
    if (!laufe(kontext))
        return;
    GefilterteTabelle& tabelle = kontext.tabelle();
    const bool eigenesErgebnis = kontext.bereich == Filterbereich::BenutzDef;
    if (!eigenesErgebnis)
        tabelle.FilterErgebnis = Recordset();
    tabelle.zustand = eigenesErgebnis ? Filterergebnis : Gefiltert;
    tabelle.filterBeschreibung.clear();
    kontext.zustand().Schnellfilter.clear();
    kontext.zustand().gezeigteWerte = kontext.FilterWerteTabelle;
    tabelle.filterListeGefuellt = !kontext.FilterWerteTabelle.empty();
    kontext.tabellen.filterGewechselt(kontext.tab);
}

} // namespace quelvarn
