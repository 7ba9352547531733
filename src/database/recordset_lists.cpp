#include "base/collation.h"
#include "database/filter_evaluator.h"
#include "database/recordset.h"
#include "database/recordset_core.h"
#include "database/sql/parser.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace quelvarn {

namespace {

constexpr Zeilennummer KEINE = std::numeric_limits<Zeilennummer>::max();

struct Fund
{
    std::string schluessel; // sortKey of the text
    bool blanks = false;    // behind the text
    Zeilenschluessel zeile = 0;
    Textcode code = 0;
};

// For each code the row stored first among these, KEINE for a code that no row has.
std::vector<Zeilennummer> ersteZeilen(const TextColumn& spalte, const Zeilenspeicher& speicher,
                                      std::span<const Zeilennummer> zeilen)
{
    std::vector<Zeilennummer> erste(spalte.texte().anzahl(), KEINE);
    const std::vector<Textcode>& codes = spalte.codes();
    for (const Zeilennummer zeile : zeilen) {
        Zeilennummer& bisher = erste[codes[zeile]];
        if (bisher == KEINE || speicher.reihenfolge(zeile) < speicher.reihenfolge(bisher))
            bisher = zeile;
    }
    return erste;
}

} // namespace

std::optional<std::vector<Bookmark>> Recordset::waehle(std::string_view bedingung, const Fortschritt& fortschritt)
{
    RowFilter filter;
    if (SharedCondition condition = sql::parseBedingung(bedingung, sql::Datumsfolge::MonatZuerst))
        filter.conditions.push_back(std::move(condition));
    return waehle(filter, fortschritt);
}

std::optional<std::vector<Bookmark>> Recordset::waehle(const RowFilter& filter, const Fortschritt& fortschritt)
{
    kern_->verlangeOffen();
    return kern_->choose(filter, fortschritt);
}

std::vector<std::string> Recordset::verschiedeneTexte(std::string_view name, std::span<const Bookmark> zeilen,
                                                      const std::function<bool(std::string_view)>& gilt)
{
    ladeSpalte(name);
    const auto* spalte = dynamic_cast<const TextColumn*>(&kern_->zeilen.spalte(kern_->zeilen.feldVon(name)));
    if (!spalte)
        throw recordsetFehler(3421, "Das Feld '" + std::string(name) + "' enthält keine Texte.");
    const std::vector<Zeilennummer> erste = ersteZeilen(*spalte, kern_->zeilen, zeilen);
    std::vector<Fund> funde;
    for (Textcode code = 1; code < erste.size(); ++code) {
        const std::string_view text = spalte->texte().text(code);
        if (erste[code] != KEINE && (!gilt || gilt(text)))
            funde.push_back({sortKey(text), text.ends_with(' '), kern_->zeilen.reihenfolge(erste[code]), code});
    }
    std::sort(funde.begin(), funde.end(), [](const Fund& links, const Fund& rechts) {
        const int ordnung = links.schluessel.compare(rechts.schluessel);
        return ordnung != 0 ? ordnung < 0 : std::tie(links.blanks, links.zeile) < std::tie(rechts.blanks, rechts.zeile);
    });
    std::vector<std::string> texte;
    for (std::size_t i = 0; i < funde.size(); ++i)
        if (i == 0 || funde[i].schluessel != funde[i - 1].schluessel)
            texte.emplace_back(spalte->texte().text(funde[i].code));
    return texte;
}

std::vector<double> Recordset::verschiedeneZahlen(std::string_view name, std::span<const Bookmark> zeilen)
{
    ladeSpalte(name);
    const Column& spalte = kern_->zeilen.spalte(kern_->zeilen.feldVon(name));
    std::vector<double> zahlen;
    const auto sammle = [&](const auto& spalteVonZahlen) {
        for (const Zeilennummer zeile : zeilen) {
            const auto zahl = spalteVonZahlen.zahlen()[zeile];
            if (spalteVonZahlen.istLeer(zahl))
                continue;
            // Neighbours are often equal, and most columns hold few numbers.
            const auto wert = static_cast<double>(zahl);
            if (zahlen.empty() || zahlen.back() != wert)
                zahlen.push_back(wert);
        }
    };
    if (const auto* ganze = dynamic_cast<const NumberColumn<std::int64_t>*>(&spalte))
        sammle(*ganze);
    else if (const auto* komma = dynamic_cast<const NumberColumn<double>*>(&spalte))
        sammle(*komma);
    else
        throw recordsetFehler(3421, "Das Feld '" + std::string(name) + "' enthält keine Zahlen.");
    std::sort(zahlen.begin(), zahlen.end());
    zahlen.erase(std::unique(zahlen.begin(), zahlen.end()), zahlen.end());
    return zahlen;
}

} // namespace quelvarn
