#include "filter/user_defined_section.h"

#include "base/collation.h"
#include "base/text.h"
#include "filter/user_defined_lists.h"
#include "filter/user_defined_match.h"
#include "platform/progress.h"
#include "session/error_report.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr int HOECHSTENS_SCHRITTE = 5;
constexpr int HOECHSTENS_ZUSAETZE = 2;
constexpr int AUTOR = 0, BEARBEITER = 1, MATERIAL = 2, PROJEKT = 3;
constexpr std::string_view JEDER_WERT = "*";
constexpr std::size_t ZEILEN_JE_DOKUMENT = 5; // A guess, for the progress alone.

Werteliste alsListe(std::vector<std::string> werte)
{
    std::string anzahl = std::to_string(werte.size());
    return {std::move(werte), std::move(anzahl)};
}

std::string_view tabelleVon(const Filterkontext& kontext)
{
    return DOKUTYPEN[static_cast<std::size_t>(kontext.tab)].tabelleBenutzDef;
}

} // namespace

std::string BenutzDefBereich::bezeichnung(int zusatz) const
{
    const std::string_view spalte = ZUSATZSPALTEN[static_cast<std::size_t>(zusatz)];
    const auto& namen = kontext_.session.labels.Bezeichnungen;
    const auto name = namen.find(toLower(spalte));
    return name == namen.end() ? std::string(spalte) : name->second;
}

bool BenutzDefBereich::vorhanden() const
{
    const Connection& verbindung = kontext_.session.database.Verbindung;
    return verbindung.offen() && verbindung.engine().findTabelle(tabelleVon(kontext_)).has_value();
}

void BenutzDefBereich::entsperre()
{
    SperreBenutzDef_ = true;
}

void BenutzDefBereich::sperre()
{
    SperreBenutzDef_ = false;
}

void BenutzDefBereich::fuelleListen()
{
    Connection& verbindung = kontext_.session.database.Verbindung;
    name_.clear();
    werte_ = {};
    kennungen_.clear();
    zusatz_ = {};
    namen_ = alsListe(leseNamen(verbindung, tabelleVon(kontext_), kontext_.session.rights.WhereStatus));
    const std::size_t zeilen = kontext_.table().count() * ZEILEN_JE_DOKUMENT; // Opening it has a progress of its own.
    LangeArbeit arbeit(kontext_.ports().fortschritt, "Listen werden gefüllt ...");
    auto zusaetze = leseZusaetze(verbindung, tabelleVon(kontext_), zeilen, arbeit);
    std::ranges::transform(zusaetze, zusatz_.begin(), [](auto& werte) { return alsListe(std::move(werte)); });
}

void BenutzDefBereich::nameGewaehlt(std::string_view name)
{
    name_ = name;
    fuelleWerte();
}

void BenutzDefBereich::setzeEmpfaenger(bool gesetzt)
{
    ChReceiver_ = gesetzt;
    fuelleWerte();
}

void BenutzDefBereich::fuelleWerte()
{
    werte_ = {};
    kennungen_.clear();
    if (name_.empty())
        return kontext_.operations.changed(Part::FilterPage);
    kontext_.operations.perform(
        Part::FilterPage, "SE-Filtern: Werte der Eigenschaft", "Fehler beim Füllen der Werteliste!", [&] {
            Connection& verbindung = kontext_.session.database.Verbindung;
            LangeArbeit arbeit(kontext_.ports().fortschritt, "Werte werden gelesen ...");
            const std::vector<std::string> werte = leseWerte(verbindung, tabelleVon(kontext_), name_);
            std::vector<std::string> gezeigte{std::string(JEDER_WERT)};
            kennungen_ = gezeigte;
            for (std::size_t i = 0; i < werte.size() && arbeit(i, werte.size()); ++i) {
                const std::string gezeigt = gezeigterWert(werte[i]);
                const std::string empfaenger = ChReceiver_ ? quelvarn::empfaenger(verbindung, werte[i]) : gezeigt;
                if (empfaenger.empty())
                    continue;
                gezeigte.push_back(empfaenger);
                kennungen_.push_back(gezeigt);
            }
            werte_ = alsListe(std::move(gezeigte));
        });
}

void BenutzDefBereich::wertGewaehlt(std::string_view wert)
{
    Meldungen& meldungen = kontext_.ports().meldungen;
    if (!SperreBenutzDef_)
        meldungen.warnung(
            "SE-Filter: Strukturmerkmale",
            zeilen({"Nach Auswahl",
                    fmt::format("{} / {} / {}", bezeichnung(AUTOR), bezeichnung(BEARBEITER), bezeichnung(MATERIAL)), "",
                    "ist die Auswahl der benutzerdefinierten Eigenschaften gesperrt!", "",
                    "Die Auswahl ist wieder entsperrt, wenn", "alle Filterwerte zurückgesetzt werden."}));
    else if (name_.empty() || wert.empty())
        meldungen.warnung("SE-Filtern: Angaben", "Angaben sind unvollständig!");
    else if (kontext_.zustand().FilterAnzahl < HOECHSTENS_SCHRITTE)
        nimmSchritt(wert);
    else
        meldungen.warnung(
            "SE-Filtern: Anzahl Filterwerte",
            zeilen({"Es können maximal 5 benutzerdefinierte Eigenschaften", "als Filterwerte vorgegeben werden!", "",
                    "Filterwert 6 und 7 kann aus",
                    fmt::format("{} / {} / {}", bezeichnung(AUTOR), bezeichnung(BEARBEITER), bezeichnung(MATERIAL)),
                    "ausgewählt werden."}));
}

// A receiver is taken by the code that stands in the table.
void BenutzDefBereich::nimmSchritt(std::string_view wert)
{
    const auto stelle = std::ranges::find(werte_.werte, wert);
    const std::string kennung = stelle == werte_.werte.end()
                                    ? std::string(wert)
                                    : kennungen_[static_cast<std::size_t>(stelle - werte_.werte.begin())];
    Filterzustand& zustand = kontext_.zustand();
    zustand.FilterSchritte[static_cast<std::size_t>(zustand.FilterAnzahl++)] = {"", name_, CodeText, kennung};
    name_.clear();
    kontext_.operations.changed(Part::FilterPage);
}

void BenutzDefBereich::zusatzGewaehlt(int index, std::string_view wert)
{
    if (wert.empty())
        return;
    auto& values = kontext_.zustand().ZusBenutzDef;
    const auto column = static_cast<std::size_t>(index);
    const bool again = std::ranges::find(values, column, &AdditionalValue::column) != values.end();
    if (!again && kontext_.zustand().BenutzDefAnzahl() >= HOECHSTENS_ZUSAETZE)
        return kontext_.ports().meldungen.warnung(
            "SE-Filtern: Anzahl Filterwerte",
            zeilen({"Von den Eigenschaften",
                    fmt::format("{} / {} / {} / {}", bezeichnung(PROJEKT), bezeichnung(AUTOR), bezeichnung(BEARBEITER),
                                bezeichnung(MATERIAL)),
                    "können maximal 2 Filterwerte ausgewählt werden."}));
    setAdditionalValue(values, {column, std::string(wert), bezeichnung(index)});
    sperre();
    kontext_.operations.changed(Part::FilterPage);
}

} // namespace quelvarn
