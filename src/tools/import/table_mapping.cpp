#include "tools/import/table_mapping.h"

#include "base/collation.h"
#include "database/document_types.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

std::size_t findSpalte(const Quelltabelle& tabelle, std::string_view name)
{
    const auto spalte = std::ranges::find_if(tabelle.spalten, [&](const auto& s) { return equalText(s.name, name); });
    return spalte == tabelle.spalten.end() ? NICHT_DA : static_cast<std::size_t>(spalte - tabelle.spalten.begin());
}

bool hatSpalten(const Quelltabelle& tabelle, std::initializer_list<std::string_view> namen)
{
    return std::ranges::all_of(namen, [&](auto name) { return findSpalte(tabelle, name) != NICHT_DA; });
}

FeldTyp feldTyp(Spaltenart art)
{
    switch (art) {
    case Spaltenart::Ganzzahl:
        return FeldTyp::Ganzzahl;
    case Spaltenart::Gleitkomma:
        return FeldTyp::Gleitkomma;
    case Spaltenart::Datum:
        return FeldTyp::Datum;
    default:
        return FeldTyp::Text;
    }
}

// Scanners of different age write it as a text or as a date, and it is shown as it stands.
FeldTyp zieltyp(const Spalte& vorgabe, Spaltenart quelle)
{
    const bool wieQuelle =
        equalText(vorgabe.name, "Gespeichert") && (quelle == Spaltenart::Text || quelle == Spaltenart::Datum);
    return wieQuelle ? feldTyp(quelle) : vorgabe.typ;
}

bool istBreiteAdresstabelle(const Quelltabelle& quelle, const Tabellenschema& vorgabe)
{
    return vorgabe.name == "Adresstabelle" && findSpalte(quelle, "Name") == NICHT_DA &&
           findSpalte(quelle, "Wert") == NICHT_DA;
}

bool alleSpaltenDa(const Tabellenschema& tabelle, const std::vector<IndexSpalte>& index)
{
    return std::ranges::all_of(index, [&](const IndexSpalte& spalte) {
        return std::ranges::any_of(tabelle.spalten, [&](const Spalte& s) { return equalText(s.name, spalte.name); });
    });
}

} // namespace

Tabellenabbildung bildeAb(const Quelltabelle& quelle, const Tabellenschema& vorgabe)
{
    Tabellenabbildung ergebnis;
    ergebnis.ziel.name = vorgabe.name;
    std::vector<bool> benutzt(quelle.spalten.size());
    const bool breit = istBreiteAdresstabelle(quelle, vorgabe);
    for (const Spalte& spalte : vorgabe.spalten) {
        const auto nummer = findSpalte(quelle, spalte.name);
        if (nummer == NICHT_DA && breit)
            continue;
        if (nummer == NICHT_DA)
            ergebnis.fehlende.push_back(spalte.name);
        else
            benutzt[nummer] = true;
        ergebnis.ziel.spalten.push_back(
            {spalte.name, nummer == NICHT_DA ? spalte.typ : zieltyp(spalte, quelle.spalten[nummer].art)});
        ergebnis.quelle.push_back(nummer);
    }
    for (std::size_t i = 0; i < quelle.spalten.size(); ++i) {
        if (quelle.spalten[i].art == Spaltenart::Fremd)
            ergebnis.nichtGenommen.push_back(i);
        if (benutzt[i] || quelle.spalten[i].art == Spaltenart::Fremd)
            continue;
        ergebnis.ziel.spalten.push_back({quelle.spalten[i].name, feldTyp(quelle.spalten[i].art)});
        ergebnis.quelle.push_back(i);
        if (!breit)
            ergebnis.zusaetzliche.push_back(quelle.spalten[i].name);
    }
    for (const auto& index : vorgabe.indexe)
        if (alleSpaltenDa(ergebnis.ziel, index))
            ergebnis.ziel.indexe.push_back(index);
    return ergebnis;
}

std::optional<std::string> findEinwand(const Katalog& katalog)
{
    const auto finde = [&](std::string_view name) {
        return std::ranges::find_if(katalog.tabellen, [&](const auto& t) { return equalText(t.name, name); });
    };
    const auto ini = finde("Ini");
    if (ini == katalog.tabellen.end())
        return "die Tabelle Ini fehlt";
    if (!hatSpalten(*ini, {"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"}))
        return "die Tabelle Ini hat nicht die Spalten Feld1 bis Feld5";
    const bool mitDokumenten = std::ranges::any_of(DOKUTYPEN, [&](const DokuTyp& typ) {
        const auto tabelle = finde(typ.tabelle);
        return tabelle != katalog.tabellen.end() && hatSpalten(*tabelle, {"DokuBez", "RevBez", "filename", "Status"});
    });
    if (!mitDokumenten)
        return "es fehlen die Tabellen der Dokumente";
    return std::nullopt;
}

} // namespace quelvarn::tools
