#include "filter/execution.h"

namespace quelvarn {

void ClearFilterSteps(Filterzustand& zustand)
{
    zustand.FilterSchritte.fill({});
}

void ClearHauptwertBereich(Filterzustand& zustand)
{
    zustand.HauptwertBereich.fill({});
}

void SaveFilterState(Filterzustand& zustand)
{
    zustand.GesicherterFilter = {zustand.FilterString, zustand.FilterAnzahl, zustand.FilterSchritte};
}

void RestoreFilterState(Filterzustand& zustand)
{
    zustand.FilterString = zustand.GesicherterFilter.FilterString;
    zustand.FilterAnzahl = zustand.GesicherterFilter.FilterAnzahl;
    zustand.FilterSchritte = zustand.GesicherterFilter.FilterSchritte;
}

void leereFilter(Filterzustand& zustand)
{
    zustand.FilterString.clear();
    zustand.FilterAnzahl = 0;
    zustand.BenutzDefAnzahl = 0;
    ClearFilterSteps(zustand);
    ClearHauptwertBereich(zustand);
    zustand.HauptwertAktiv = false;
    zustand.ZusBenutzDef.fill({});
    zustand.gezeigteWerte.clear();
}

} // namespace quelvarn
