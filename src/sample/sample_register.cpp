#include "sample/sample_register.h"

#include "database/schema.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <utility>

namespace quelvarn::sample {

namespace {

using Schreiber = void (*)(const Dokumente&, Zeilensenke&);

constexpr std::array<std::pair<std::string_view, Schreiber>, 9> TABELLEN{{
    {"ZusBauPart", schreibeZusBauPart},
    {"ZusBauSubAss", schreibeZusBauSubAss},
    {"VerbindungDraftPart", schreibeVerbindungDraftPart},
    {"VerbindungWeldAssemb", schreibeVerbindungWeldAssemb},
    {"VerbindungPartZusDoku", schreibeVerbindungPartZusDoku},
    {"TIFFTabelle", schreibeTIFFTabelle},
    {"Ini", schreibeIni},
    {"CheckInOut", schreibeCheckInOut},
    {"Adresstabelle", schreibeAdresstabelle},
}};

void schreibeDokumente(const Dokumente& dokumente, Tab tab, Zeilensenke& senke)
{
    std::vector<Value> werte;
    fuerJedesDokument(dokumente, [&](std::uint32_t teil, int revision) {
        if (dokumente.plan().teil(teil).tab != tab)
            return;
        dokumente.zeile(teil, revision, werte);
        senke.zeile(werte);
    });
}

void schreibe(const Tabellenschema& tabelle, const Dokumente& dokumente, Zeilensenke& senke)
{
    for (const DokuTyp& typ : DOKUTYPEN) {
        if (tabelle.name == typ.tabelle)
            return schreibeDokumente(dokumente, static_cast<Tab>(typ.tab), senke);
        if (tabelle.name == typ.tabelleBenutzDef)
            return schreibeBenutzDef(dokumente, static_cast<Tab>(typ.tab), senke);
    }
    const auto schreiber =
        std::ranges::find(TABELLEN, std::string_view(tabelle.name), &std::pair<std::string_view, Schreiber>::first);
    assert(schreiber != TABELLEN.end());
    schreiber->second(dokumente, senke);
}

} // namespace

void schreibeMusterregister(const Dokumente& dokumente, Zeilensenke& senke)
{
    for (const Tabellenschema& tabelle : registerschema()) {
        senke.tabelle(tabelle);
        schreibe(tabelle, dokumente, senke);
    }
}

} // namespace quelvarn::sample
