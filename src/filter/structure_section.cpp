#include "filter/structure_section.h"

#include "base/collation.h"
#include "base/like_pattern.h"
#include "base/text.h"
#include "database/sql/conditions.h"
#include "filter/execution.h"
#include "filter/template_lookup.h"
#include "platform/progress.h"
#include "session/error_report.h"

#include <algorithm>
#include <fmt/format.h>
#include <functional>

namespace quelvarn {
namespace {

constexpr std::string_view EBENEN = "CDEFG";
constexpr const char* GESPERRT = "SE-Filter: Strukturmerkmale";

std::string merkmal(std::size_t ebene)
{
    return fmt::format("Hauptmerkmal_{}", EBENEN[ebene]);
}

// A value that was edited may be a pattern.
std::string gleich(std::string_view feld, std::string_view wert)
{
    if (wert.find('*') != std::string_view::npos)
        return fmt::format("{} Like {}", feld, sql::quoted(asSqlPattern(wert, Wildcards::Star)));
    return fmt::format("{} = {}", feld, sql::quoted(wert));
}

std::string bedingungVon(const Strukturpfad& pfad)
{
    std::vector<std::string> teile;
    for (std::size_t ebene = 0; ebene < pfad.size(); ++ebene)
        teile.push_back(gleich(merkmal(ebene), pfad[ebene]));
    return join(teile, " AND ");
}

std::string erweitert(std::string_view bedingung, std::string_view feld, std::string_view wert)
{
    return fmt::format("{} {}", bedingung.empty() ? "" : fmt::format("{} AND", bedingung), gleich(feld, wert));
}

bool nichtLeer(std::string_view text)
{
    return !text.empty();
}

bool nichtNurBlanks(std::string_view text)
{
    return !trimRightBlanks(text).empty();
}

// The boxes of a level that could not be built. Only one of them bears the page's own name.
struct Fehlertexte
{
    std::string titel;
    std::string text;
};

Fehlertexte fehlertexte(std::size_t ebene)
{
    if (ebene == EBENEN.size())
        return {"SE-Doku: Werte u. Alias Strukturmerkmale G",
                "Fehler beim Aufbau der Werte u. Alias Strukturmerkmale G!"};
    return {fmt::format("{}: Aufbau der Strukturmerkmale {}", ebene == 1 ? "SE-Filtern" : "SE-Doku", EBENEN[ebene]),
            fmt::format("Fehler beim Aufbau der Strukturmerkmale {}!", EBENEN[ebene])};
}

} // namespace

struct Strukturbereich::Zweig
{
    std::vector<Strukturknoten> kinder;
    Werteliste material;
    Werteliste firma;
    std::string vorlage;
};

namespace {

std::vector<Strukturknoten> knotenVon(std::vector<std::string> werte)
{
    std::vector<Strukturknoten> knoten;
    for (std::string& wert : werte)
        knoten.push_back({std::move(wert), {}, false, {}});
    return knoten;
}

} // namespace

// --- operations ---

void Strukturbereich::knotenGewaehlt(const Strukturpfad& pfad)
{
    if (pfad.empty() || pfad == StrukturLetzterPfad_)
        return;
    if (!SperreBaum_) {
        meldeGesperrt(fmt::format("Nach Auswahl\n - {} / {}\noder\n- Hauptwerte a bis g\n"
                                  "ist die Auswahl weiterer Strukturmerkmale\nC bis G gesperrt!",
                                  anzeigename(kontext_.session, "Material"), anzeigename(kontext_.session, "Firma")));
        return;
    }
    if (!std::equal(pfad.begin(), pfad.end() - 1, StrukturLetzterPfad_.begin(), StrukturLetzterPfad_.end())) {
        kontext_.ports().meldungen.warnung("SE-Doku: Auswahl Pfad",
                                           "Pfad wurde nicht eingehalten!\n\n"
                                           "Gehen Sie über <Zurück> zum Anfang des Strukturbaumes.");
        return;
    }
    const auto [titel, text] = fehlertexte(pfad.size());
    const bool gelaufen = kontext_.operations.perform(Part::FilterPage, titel, text, [&] {
        auto zweig = leseZweig(pfad);
        if (!zweig)
            return;
        const std::string feld = merkmal(pfad.size() - 1);
        AddFilterStep(kontext_, pfad.back(), feld, 0, {"", replaceAll(feld, "_", " ")});
        uebernimmZweig(pfad, std::move(*zweig));
    });
    if (gelaufen && StrukturLetzterPfad_ == pfad)
        fuelleHauptwerte();
    kontext_.operations.changed(Part::FilterPage);
}

void Strukturbereich::materialGewaehlt(std::string_view wert)
{
    waehleImZweig("Material", wert, SperreMaterial_);
}

void Strukturbereich::firmaGewaehlt(std::string_view wert)
{
    waehleImZweig("Firma", wert, SperreFirma_);
}

void Strukturbereich::waehleImZweig(std::string_view Feldname, std::string_view wert, bool erlaubt)
{
    if (wert.empty())
        return;
    if (!erlaubt) {
        meldeGesperrt(fmt::format("Nach Auswahl\n- Hauptwerte a bis g\nist die Auswahl {} / {} gesperrt!",
                                  anzeigename(kontext_.session, "Material"), anzeigename(kontext_.session, "Firma")));
        return;
    }
    AddFilterStep(kontext_, wert, Feldname, 0,
                  {fmt::format("StrukturMerk{}", Feldname), anzeigename(kontext_.session, Feldname)});
    SperreBaum_ = false;
    StrukturBedingung_ = erweitert(StrukturBedingung_, Feldname, wert);
    fuelleHauptwerte();
    kontext_.operations.changed(Part::FilterPage);
}

void Strukturbereich::meldeGesperrt(std::string_view text)
{
    kontext_.ports().meldungen.warnung(GESPERRT, fmt::format("{}\n\nDie Auswahl ist wieder entsperrt, wenn\n"
                                                             "alle Filterwerte zurückgesetzt werden.",
                                                             text));
}

// --- the branch ---

// Nothing when reading was given up. Changes no state, so that a fault leaves the branch before.
std::optional<Strukturbereich::Zweig> Strukturbereich::leseZweig(const Strukturpfad& pfad)
{
    std::vector<std::string> spalten{"Material", "Firma"};
    for (std::size_t ebene = 0; ebene < EBENEN.size(); ++ebene)
        spalten.push_back(merkmal(ebene));
    LangeArbeit arbeit(kontext_.ports().fortschritt, "Strukturmerkmale werden gelesen ...");
    if (!tabelle().ladeSpalten(spalten, std::ref(arbeit)))
        return std::nullopt;
    const auto zeilen = tabelle().waehle(bedingungVon(pfad));
    Zweig zweig;
    if (pfad.size() < EBENEN.size())
        zweig.kinder = knotenVon(tabelle().verschiedeneTexte(merkmal(pfad.size()), *zeilen, nichtLeer));
    zweig.material = werteliste(tabelle().verschiedeneTexte("Material", *zeilen, nichtNurBlanks));
    zweig.firma = werteliste(tabelle().verschiedeneTexte("Firma", *zeilen, nichtNurBlanks));
    zweig.vorlage = VorlageSuchen(kontext_.session.database.Verbindung, pfad);
    return zweig;
}

void Strukturbereich::uebernimmZweig(const Strukturpfad& pfad, Zweig zweig)
{
    if (Strukturknoten* knoten = findeKnoten(pfad)) {
        knoten->kinder = std::move(zweig.kinder);
        knoten->gelesen = true;
        knoten->statuszeile = fmt::format("{}; Anz. {}; ", knoten->wert, knoten->kinder.size());
    }
    material_ = std::move(zweig.material);
    firma_ = std::move(zweig.firma);
    if (!zweig.vorlage.empty())
        vorlage_ = std::move(zweig.vorlage);
    StrukturBedingung_ = bedingungVon(pfad);
    StrukturLetzterPfad_ = pfad;
}

Strukturknoten* Strukturbereich::findeKnoten(const Strukturpfad& pfad)
{
    Strukturknoten* knoten = &wurzel_;
    for (const std::string& wert : pfad) {
        const auto kind = std::ranges::find_if(
            knoten->kinder, [&](const Strukturknoten& kandidat) { return equalText(kandidat.wert, wert); });
        if (kind == knoten->kinder.end())
            return nullptr;
        knoten = &*kind;
    }
    return knoten;
}

void Strukturbereich::BaumAufbauen()
{
    LangeArbeit arbeit(kontext_.ports().fortschritt, "Strukturmerkmale werden gelesen ...");
    if (!tabelle().ladeSpalte(merkmal(0), std::ref(arbeit)))
        return;
    const auto zeilen = tabelle().waehle("");
    wurzel_ = {"Root", {}, true, knotenVon(tabelle().verschiedeneTexte(merkmal(0), *zeilen, nichtLeer))};
    wurzel_.statuszeile = fmt::format("Root; Anz. {}; ", wurzel_.kinder.size());
    StrukturLetzterPfad_.clear();
}

void Strukturbereich::FilterEigenMWMitFi(std::string_view bedingung)
{
    LangeArbeit arbeit(kontext_.ports().fortschritt, "Filterlisten werden gefüllt ...");
    const std::vector<std::string> spalten{"Material", "Firma"};
    if (!tabelle().ladeSpalten(spalten, std::ref(arbeit)))
        return;
    const auto zeilen = tabelle().waehle(bedingung, std::ref(arbeit));
    if (!zeilen)
        return;
    material_ = werteliste(tabelle().verschiedeneTexte("Material", *zeilen, nichtNurBlanks));
    firma_ = werteliste(tabelle().verschiedeneTexte("Firma", *zeilen, nichtNurBlanks));
}

void Strukturbereich::zuruecksetzen()
{
    wurzel_ = {"Root", {}, false, {}};
    StrukturLetzterPfad_.clear();
    StrukturBedingung_.clear();
    material_ = firma_ = werte_ = alias_ = {};
    SperreHauptwert_ = true;
    SperreBaum_ = SperreMaterial_ = SperreFirma_ = !kontext_.zustand().HauptwertAktiv;
    BaumAufbauen();
    FilterEigenMWMitFi({});
    fuelleHauptwerte();
}

void Strukturbereich::stelleWiederHer(std::span<const FilterSchritt> steps)
{
    Strukturpfad pfad;
    for (const FilterSchritt& step : steps) {
        if (!step.Feldname.starts_with("Hauptmerkmal_"))
            continue;
        pfad.push_back(step.Wert);
        auto zweig = leseZweig(pfad);
        if (!zweig)
            return;
        uebernimmZweig(pfad, std::move(*zweig));
    }
    for (const FilterSchritt& step : steps) {
        if (step.Feldname.starts_with("Hauptmerkmal_"))
            continue;
        StrukturBedingung_ = erweitert(StrukturBedingung_, step.Feldname, step.Wert);
        SperreBaum_ = false;
    }
    fuelleHauptwerte();
}

} // namespace quelvarn
