#include "database/document_types.h"
#include "tools/check/checks.h"

#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

// A column that names the file of a document.
struct Verweis
{
    std::string_view tabelle;
    std::string_view spalte;
};

constexpr std::array<Verweis, 9> VERWEISE{{
    {"ZusBauPart", "Assembfilename"},
    {"ZusBauPart", "Part"},
    {"ZusBauSubAss", "Assembfilename"},
    {"ZusBauSubAss", "Subassembly"},
    {"VerbindungDraftPart", "filenameDraft"},
    {"VerbindungDraftPart", "PfadAssembPart"},
    {"VerbindungWeldAssemb", "filenameWeld"},
    {"VerbindungWeldAssemb", "PfadAssemb"},
    {"VerbindungPartZusDoku", "Dokufilename"},
}};

void pruefeEigenschaften(Engine& engine, const DokuTyp& typ, Befund& befund, Verlaufsanzeige& anzeige,
                         const Dokumentschluessel& schluessel)
{
    const auto zeilen = findZeilen(engine, typ.tabelleBenutzDef, {"DokuBez", "RevBez"});
    const auto& dokumente = schluessel.dokumente[static_cast<std::size_t>(typ.tab)];
    Vorkommen verwaist;
    std::uint64_t anzahl = 0;
    while (zeilen && zeilen->next()) {
        anzeige.melde(typ.tabelleBenutzDef, ++anzahl);
        if (!Dokumentschluessel::enthaelt(dokumente, Dokumentschluessel::aus(zeilen->text(0), zeilen->text(1))))
            verwaist.merke(fmt::format("{} ({})", zeilen->text(0), zeilen->text(1)));
    }
    if (verwaist.anzahl() > 0)
        befund.warnung(fmt::format("{}: {}", typ.tabelleBenutzDef, verwaist.text("Zeilen ohne ihr Dokument")));
}

} // namespace

void pruefeVerbindungen(Engine& engine, Befund& befund, Verlaufsanzeige& anzeige, const Dokumentschluessel& schluessel)
{
    for (const Verweis& verweis : VERWEISE) {
        const auto zeilen = findZeilen(engine, verweis.tabelle, {std::string(verweis.spalte)});
        Vorkommen verwaist;
        std::uint64_t anzahl = 0;
        while (zeilen && zeilen->next()) {
            anzeige.melde(verweis.tabelle, ++anzahl);
            const bool da = !zeilen->istNull(0) &&
                            Dokumentschluessel::enthaelt(schluessel.dateien, Dokumentschluessel::aus(zeilen->text(0)));
            if (!da)
                verwaist.merke(zeilen->istNull(0) ? "Null" : zeilen->text(0));
        }
        if (verwaist.anzahl() > 0)
            befund.warnung(fmt::format(
                "{}: {}", verweis.tabelle,
                verwaist.text(fmt::format("Zeilen, deren {} in keiner Dokumenttabelle steht", verweis.spalte))));
    }
    for (const DokuTyp& typ : DOKUTYPEN)
        pruefeEigenschaften(engine, typ, befund, anzeige, schluessel);
}

} // namespace quelvarn::tools
