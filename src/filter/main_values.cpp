#include "base/number_format.h"
#include "base/text.h"
#include "filter/execution.h"
#include "filter/structure_section.h"
#include "platform/progress.h"
#include "session/error_report.h"

#include <algorithm>
#include <fmt/format.h>
#include <functional>

namespace quelvarn {
namespace {

constexpr std::string_view HAUPTWERTE = "abcdefg";
constexpr const char* FEHLER_LISTEN = "Fehler beim Füllen der ComboBoxen für Hauptwerte a bis g!";

char buchstabe(int hauptwert)
{
    return HAUPTWERTE[static_cast<std::size_t>(hauptwert)];
}

// Numbers that count as the same one stand there once.
Werteliste zahlenliste(const std::vector<double>& zahlen)
{
    std::vector<Decimal> values;
    for (const double zahl : zahlen) {
        const auto value = Decimal::from(zahl);
        if (value && !value->isZero() && (values.empty() || values.back() != *value))
            values.push_back(*value);
    }
    std::vector<std::string> texte(values.size());
    std::ranges::transform(values, texte.begin(), &Decimal::text);
    return werteliste(std::move(texte));
}

std::optional<Decimal> decimalFrom(std::string_view text)
{
    const auto number = parseZahl(text);
    return number ? Decimal::from(*number) : std::nullopt;
}

} // namespace

void Strukturbereich::hauptwertGewaehlt(int hauptwert)
{
    hauptwert_ = hauptwert;
    fuelleHauptwerte();
    kontext_.operations.changed(Part::FilterPage);
}

void Strukturbereich::setzeAnzahlWerteZeigen(bool gesetzt)
{
    ChShowAnzWerte_ = gesetzt;
    fuelleHauptwerte();
    kontext_.operations.changed(Part::FilterPage);
}

void Strukturbereich::setzeAnzahlAliasZeigen(bool gesetzt)
{
    ChShowAnzAlias_ = gesetzt;
    fuelleHauptwerte();
    kontext_.operations.changed(Part::FilterPage);
}

// Each list by itself: one that cannot be filled stays empty.
void Strukturbereich::fuelleHauptwerte()
{
    werte_ = alias_ = {};
    Meldungen& meldungen = kontext_.ports().meldungen;
    LangeArbeit arbeit(kontext_.ports().fortschritt, "Hauptwerte werden gelesen ...");
    const std::string wert = fmt::format("Hauptwert_{}", buchstabe(hauptwert_));
    const std::string alias = fmt::format("Alias_{}", buchstabe(hauptwert_));
    std::optional<std::vector<Bookmark>> zeilen;
    gesichert(meldungen, "SE-Filtern: ComboBoxen für Hauptwerte a bis g", FEHLER_LISTEN, [&] {
        if (!tabelle().ladeSpalten(std::vector{wert, alias}, std::ref(arbeit)))
            return;
        zeilen = tabelle().waehle(StrukturBedingung_, std::ref(arbeit));
        if (zeilen && ChShowAnzWerte_)
            werte_ = zahlenliste(tabelle().verschiedeneZahlen(wert, *zeilen));
    });
    if (!zeilen)
        return;
    gesichert(meldungen, "SE-Filtern: Listen für Alias a bis g", FEHLER_LISTEN, [&] {
        alias_ = werteliste(
            tabelle().verschiedeneTexte(alias, *zeilen, [](std::string_view text) { return !text.empty(); }));
        if (!ChShowAnzAlias_)
            alias_.anzahl.clear();
    });
}

void Strukturbereich::hauptwertUebernehmen(std::string_view CbHW, std::string_view TextBB)
{
    if (!SperreHauptwert_)
        return;
    const auto wert = decimalFrom(CbHW);
    const auto band = trim(TextBB).empty() ? std::optional(Decimal()) : decimalFrom(TextBB);
    const auto MinWert = wert && band ? wert->minus(*band) : std::nullopt;
    const auto MaxWert = wert && band ? wert->plus(*band) : std::nullopt;
    if (!MinWert || !MaxWert) {
        kontext_.ports().meldungen.warnung("Zahlenwerte", fmt::format("Kein Zahlenwert: {}", wert ? TextBB : CbHW));
        return;
    }
    Filterzustand& zustand = kontext_.zustand();
    zustand.HauptwertBereich[static_cast<std::size_t>(hauptwert_)] = {*MinWert, *MaxWert};
    zustand.HauptwertAktiv = true;
    SperreBaum_ = SperreMaterial_ = SperreFirma_ = false;
    kontext_.operations.changed(Part::FilterPage);
}

void Strukturbereich::leereHauptwerte()
{
    ClearHauptwertBereich(kontext_.zustand());
    kontext_.zustand().HauptwertAktiv = false;
    kontext_.operations.changed(Part::FilterPage);
}

std::string Strukturbereich::hauptwertName(int hauptwert) const
{
    return fmt::format("Hauptwert {}", buchstabe(hauptwert));
}

std::string Strukturbereich::hauptwertBand(int hauptwert) const
{
    const Hauptwertgrenzen& grenzen = kontext_.zustand().HauptwertBereich[static_cast<std::size_t>(hauptwert)];
    if (!grenzen.gesetzt())
        return {};
    if (grenzen.MinWert == grenzen.MaxWert)
        return grenzen.MinWert.text();
    return fmt::format("{} - {}", grenzen.MinWert.text(), grenzen.MaxWert.text());
}

} // namespace quelvarn
