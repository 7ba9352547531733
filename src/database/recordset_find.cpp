#include "database/filter_evaluator.h"
#include "database/recordset.h"
#include "database/recordset_core.h"
#include "database/recordset_sort.h"
#include "database/sql/parser.h"

#include <algorithm>
#include <numeric>

namespace quelvarn {

namespace {

constexpr std::size_t ERSTER_SCHRITT = 256;
constexpr std::size_t GROESSTER_SCHRITT = 1 << 16;
// What is not near is often nowhere; the texts of a column tell that sooner than its rows.
constexpr std::ptrdiff_t FRAGE_AB_SCHRITT = 16 * ERSTER_SCHRITT;

} // namespace

void Recordset::Filter(std::string_view ausdruck, const Fortschritt& fortschritt)
{
    RowFilter filter{std::string(ausdruck), {}};
    if (SharedCondition condition = sql::parseBedingung(ausdruck, sql::Datumsfolge::TagZuerst, Wildcards::Star))
        filter.conditions.push_back(std::move(condition));
    Filter(std::move(filter), fortschritt);
}

void Recordset::Filter(RowFilter filter, const Fortschritt& fortschritt)
{
    Kern& kern = *kern_;
    kern.beendeBearbeitung();
    if (filter.conditions.empty()) {
        kern.zeigeAlle();
    } else {
        auto gefundene = kern.choose(filter, fortschritt);
        if (!gefundene)
            return;
        kern.zeige(std::move(*gefundene));
    }
    kern.filter = std::move(filter);
}

const RowFilter& Recordset::filter() const
{
    return kern_->filter;
}

void Recordset::Sort(std::string_view ausdruck)
{
    Kern& kern = *kern_;
    kern.beendeBearbeitung();
    const auto felder = leseSortierung(ausdruck, [&](std::string_view name) { return kern.zeilen.feldVon(name); });
    std::vector<std::size_t> nummern(felder.size());
    std::transform(felder.begin(), felder.end(), nummern.begin(), [](const Sortierfeld& feld) { return feld.feld; });
    kern.zeilen.lade(nummern, {});

    std::vector<bool> gezeigt(kern.zeilen.anzahl());
    for (const Zeilennummer zeile : kern.ansicht.ausschnitt(0, kern.ansicht.anzahl()))
        gezeigt[zeile] = true;
    auto reihe = kern.setzeOrdnung(felder);
    std::erase_if(reihe, [&](Zeilennummer zeile) { return !gezeigt[zeile]; });
    if (reihe.size() == kern.zeilen.anzahl())
        kern.zeigeAlle();
    else
        kern.zeige(std::move(reihe));
}

std::vector<Zeilennummer> Recordset::Kern::setzeOrdnung(const std::vector<Sortierfeld>& felder)
{
    sortiert = false;
    ordnung = {};
    auto reihe = alleZeilen();
    if (!felder.empty()) {
        sortiere(reihe, felder, [&](std::size_t feld) -> const Column& { return zeilen.spalte(feld); });
        ordnung = reihe;
        sortiert = true;
    }
    return reihe;
}

bool Recordset::Find(std::string_view kriterium, std::size_t ueberspringe, Suchrichtung richtung, bool vonAnfang,
                     const Fortschritt& fortschritt)
{
    Kern& kern = *kern_;
    kern.beendeBearbeitung();
    const SharedCondition bedingung = sql::parseBedingung(kriterium, sql::Datumsfolge::TagZuerst, Wildcards::Percent);
    if (!bedingung)
        throw recordsetFehler(3001, "Das Suchkriterium ist leer.");
    if (!kern.ladeGenannte({&bedingung, 1}, fortschritt))
        return false;
    const auto auswahl = kern.baueAuswahlVon(*bedingung);

    const bool vorwaerts = richtung == Suchrichtung::Vorwaerts;
    const auto anzahl = static_cast<std::ptrdiff_t>(kern.ansicht.anzahl());
    const std::ptrdiff_t anfang = vorwaerts ? 0 : anzahl - 1;
    const std::ptrdiff_t start = vonAnfang ? anfang : kern.position;
    const auto weiter = static_cast<std::ptrdiff_t>(std::min(ueberspringe, kern.ansicht.anzahl()));
    const auto gefunden = kern.findePosition(*auswahl, vorwaerts ? start + weiter : start - weiter, vorwaerts);
    kern.position = gefunden.value_or(vorwaerts ? anzahl : -1);
    return gefunden.has_value();
}

std::optional<std::ptrdiff_t> Recordset::Kern::findePosition(Auswahl& auswahl, std::ptrdiff_t ab, bool vorwaerts) const
{
    const auto anzahl = static_cast<std::ptrdiff_t>(ansicht.anzahl());
    ab = std::clamp<std::ptrdiff_t>(ab, vorwaerts ? 0 : -1, vorwaerts ? anzahl : anzahl - 1);
    for (auto schritt = static_cast<std::ptrdiff_t>(ERSTER_SCHRITT); vorwaerts ? ab < anzahl : ab >= 0;
         schritt = std::min<std::ptrdiff_t>(schritt * 4, GROESSTER_SCHRITT)) {
        if (schritt == FRAGE_AB_SCHRITT && auswahl.nirgends())
            return std::nullopt;
        const std::ptrdiff_t von = vorwaerts ? ab : std::max<std::ptrdiff_t>(ab + 1 - schritt, 0);
        const std::ptrdiff_t bis = vorwaerts ? std::min(ab + schritt, anzahl) : ab + 1;
        const auto alle = ansicht.ausschnitt(static_cast<std::size_t>(von), static_cast<std::size_t>(bis));
        auto treffer = alle;
        auswahl.behalte(treffer);
        if (!treffer.empty()) {
            const Zeilennummer gesucht = vorwaerts ? treffer.front() : treffer.back();
            return von + (std::find(alle.begin(), alle.end(), gesucht) - alle.begin());
        }
        ab = vorwaerts ? bis : von - 1;
    }
    return std::nullopt;
}

std::vector<Zeilennummer> Recordset::Kern::alleZeilen() const
{
    if (sortiert)
        return ordnung;
    std::vector<Zeilennummer> alle(zeilen.anzahl());
    std::iota(alle.begin(), alle.end(), Zeilennummer{0});
    if (!geloescht.empty())
        std::erase_if(
            alle, [&](Zeilennummer zeile) { return std::binary_search(geloescht.begin(), geloescht.end(), zeile); });
    return alle;
}

void Recordset::Kern::zeigeAlle()
{
    if (sortiert || !geloescht.empty())
        zeige(alleZeilen());
    else
        ansicht.zeigeAlle(zeilen.anzahl());
    position = 0;
    puffer.leere();
}

void Recordset::Kern::zeige(std::vector<Zeilennummer> gefundene)
{
    ansicht.zeige(std::move(gefundene), !sortiert);
    position = 0;
    puffer.leere();
}

std::unique_ptr<Auswahl> Recordset::Kern::baueAuswahlVon(const sql::Ausdruck& ausdruck) const
{
    return baueAuswahl(ausdruck,
                       [this](std::string_view name) -> const Column& { return zeilen.spalte(zeilen.feldVon(name)); });
}

std::optional<std::vector<Zeilennummer>> Recordset::Kern::choose(const RowFilter& filter,
                                                                 const Fortschritt& fortschritt)
{
    if (!ladeGenannte(filter.conditions, fortschritt))
        return std::nullopt;
    std::vector<Zeilennummer> chosen = alleZeilen();
    for (const SharedCondition& condition : filter.conditions)
        baueAuswahlVon(*condition)->behalte(chosen);
    return chosen;
}

bool Recordset::Kern::ladeGenannte(std::span<const SharedCondition> conditions, const Fortschritt& fortschritt)
{
    std::vector<std::size_t> felder;
    for (const SharedCondition& condition : conditions)
        for (const std::string& name : genannteSpalten(*condition))
            if (const std::size_t feld = zeilen.feldVon(name); std::ranges::find(felder, feld) == felder.end())
                felder.push_back(feld);
    return zeilen.lade(felder, fortschritt);
}

} // namespace quelvarn
