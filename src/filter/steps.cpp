#include "filter/execution.h"
#include "platform/boxes.h"

#include <utility>

namespace quelvarn {
namespace {

constexpr int OHNE_CODE_AB = 5; // Rows behind the fifth are those of the structure features: texts alone.

int codeVon(std::string_view Feldname, int Operator)
{
    if (Feldname == "Status")
        return CodeStatus + Operator;
    if (Feldname == "Erstellt")
        return CodeErstellt + Operator;
    if (Feldname == "Geaendert")
        return CodeGeaendert + Operator;
    return CodeText;
}

} // namespace

void AddFilterStep(Filterkontext& kontext, std::string_view Wert, std::string_view Feldname, int Operator, RowName row)
{
    Filterzustand& zustand = kontext.zustand();
    const int nummer = zustand.FilterAnzahl;
    const bool frei = nummer < 5 || (nummer == 5 && kontext.bereich() == Filterbereich::Struktur) || nummer == 6;
    if (!frei) {
        kontext.ports().meldungen.warnung("Anzahl Filter", "Alle Filter sind gefüllt!");
        zustand.FilterAnzahl = ALLE_GEFUELLT;
        return;
    }
    zustand.FilterSchritte[static_cast<std::size_t>(nummer)] = {std::string(Feldname),
                                                                std::string(Wert),
                                                                nummer < OHNE_CODE_AB ? codeVon(Feldname, Operator)
                                                                                      : CodeText,
                                                                {},
                                                                std::move(row)};
    zustand.FilterAnzahl = nummer + 1;
}

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
    zustand.GesicherterFilter = {zustand.FilterString, zustand.FilterAnzahl, zustand.FilterSchritte, zustand.bereich};
}

void RestoreFilterState(Filterzustand& zustand)
{
    zustand.FilterString = zustand.GesicherterFilter.FilterString;
    zustand.FilterAnzahl = zustand.GesicherterFilter.FilterAnzahl;
    zustand.FilterSchritte = zustand.GesicherterFilter.FilterSchritte;
    zustand.bereich = zustand.GesicherterFilter.bereich;
}

void leereFilter(Filterzustand& zustand)
{
    zustand.FilterString.clear();
    zustand.Schnellfilter.clear();
    zustand.FilterAnzahl = 0;
    ClearFilterSteps(zustand);
    ClearHauptwertBereich(zustand);
    zustand.HauptwertAktiv = false;
    zustand.ZusBenutzDef.clear();
}

} // namespace quelvarn
