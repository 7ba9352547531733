#include "filter/filter_page.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "filter/execution.h"
#include "filter/saved_filters.h"
#include "platform/clock.h"
#include "session/error_report.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>

namespace quelvarn {

FilterPage::FilterPage(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables)
    : kontext_{session, operations, filter, tables}, eigenschaften_(kontext_), struktur_(kontext_), benutzDef_(kontext_)
{}

void FilterPage::perform(std::string_view title, std::string_view text, const std::function<void()>& operation)
{
    kontext_.operations.perform(Part::FilterPage, title, text, operation);
}

// --- opening and closing ---------------------------------------------------------------------------------------

void FilterPage::seiteGezeigt(Seite seite)
{
    if (seite == Seite::Filter)
        OpenFilterPage();
}

void FilterPage::OpenFilterPage()
{
    perform("Laden der Form 'SEFiltern'", "Fehler beim Laden der Form 'SEFiltern'!", [&] {
        geladen_ = kontext_.session.pages.FormSEFilternGeladen = true;
        kontext_.tab = kontext_.tables.tab();
        // The steps of a quick filter do not belong here.
        if (!kontext_.table().narrowing().quickFilter.empty())
            ResetAllFilters(kontext_);
        benutzDefVorhanden_ = benutzDef_.vorhanden();
        if (!bereichVorhanden(kontext_.bereich()))
            leere();
        SaveFilterState(kontext_.zustand());
        fuelleBereich();
    });
}

void FilterPage::CloseFilterPage()
{
    if (!geladen_)
        return;
    speichereFilterlisten(kontext_.session, kontext_.ports().meldungen);
    schliesseVorlage();
}

void FilterPage::verlassen()
{
    CloseFilterPage();
    kontext_.operations.changed(Part::FilterPage);
    if (zurDokumentseite)
        zurDokumentseite();
}

void FilterPage::entladen()
{
    CloseFilterPage();
    geladen_ = kontext_.session.pages.FormSEFilternGeladen = false;
}

// Saved filters go to the database that they are from, which is still open.
void FilterPage::datenbankWechselt()
{
    entladen();
    kontext_.filter = {};
    kontext_.tab = 0;
    kontext_.operations.changed(Part::FilterPage);
}

// --- the state of a type ---------------------------------------------------------------------------------------

void FilterPage::leere()
{
    leereFilter(kontext_.zustand());
}

// A marker that all steps are filled does not come back: what was collected can be run.
void FilterPage::stelleStandWiederHer()
{
    Filterzustand& zustand = kontext_.zustand();
    if (zustand.GesicherterFilter.bereich != zustand.bereich)
        return leere(); // It was made on another part of the page; the parts do not mix.
    RestoreFilterState(zustand);
    zustand.FilterAnzahl = static_cast<int>(filledSteps(zustand).size());
}

// --- the part of the page in front -----------------------------------------------------------------------------

void FilterPage::bereichGewaehlt(Filterbereich bereich)
{
    if (bereich == kontext_.bereich() || !bereichVorhanden(bereich))
        return;
    perform("Wechsel der Filterbereiche", "Fehler beim Wechsel der Filterbereiche!", [&] {
        leere();
        kontext_.zustand().bereich = bereich;
        fuelleBereich();
    });
}

void FilterPage::fuelleBereich()
{
    ++listenfassung_;
    switch (kontext_.bereich()) {
    case Filterbereich::Eigenschaften:
        return eigenschaften_.FilterListenSchmal(kontext_.zustand().FilterString);
    case Filterbereich::Struktur:
        return fuelleStruktur();
    case Filterbereich::BenutzDef:
        benutzDef_.entsperre();
        benutzDef_.fuelleListen();
        if (kontext_.zustand().BenutzDefAnzahl() > 0)
            benutzDef_.sperre();
    }
}

// The tree as the steps of the type have walked it.
void FilterPage::fuelleStruktur()
{
    struktur_.zuruecksetzen();
    if (const auto steps = filledSteps(kontext_.zustand()); !steps.empty())
        struktur_.stelleWiederHer(steps);
}

void FilterPage::filtern()
{
    perform("Fehler beim Filtern nach Standard", "Fehler beim Filtern nach Standard!", [&] {
        FilterEigenMerkBenutzDef(kontext_);
        if (kontext_.bereich() == Filterbereich::Eigenschaften)
            fuelleBereich();
    });
}

void FilterPage::zurueck()
{
    perform("Zurücksetzen der Filterwerte", "Fehler beim Zurücksetzen der Filterwerte!", [&] {
        if (kontext_.bereich() == Filterbereich::Eigenschaften)
            stelleStandWiederHer();
        else
            leere();
        fuelleBereich();
    });
}

void FilterPage::werte()
{
    perform("Zurücksetzen der Hauptwerte", "Fehler beim Zurücksetzen der Hauptwerte!",
            [&] { struktur_.leereHauptwerte(); });
}

// --- the template ----------------------------------------------------------------------------------------------

void FilterPage::vorlage(bool gedrueckt)
{
    if (gedrueckt)
        oeffneVorlage();
    else
        schliesseVorlage();
    kontext_.operations.changed(Part::FilterPage);
}

void FilterPage::oeffneVorlage()
{
    const std::string pfad = vorlagePfad();
    zeigtVorlage_ = Dateiendung(pfad) == "dft" && viewer && viewer(pfad);
    if (zeigtVorlage_)
        return;
    kontext_.ports().meldungen.warnung("Anzeigen im Viewer", zeilen({
                                                                 "Die Datei:",
                                                                 "",
                                                                 pfad,
                                                                 "",
                                                                 "konnte nicht geöffnet werden!",
                                                                 "",
                                                                 "Mögliche Ursache:",
                                                                 "- Kein Zugriffsrecht.",
                                                                 "- Falscher Pfad- und/oder Dateiname.",
                                                             }));
}

void FilterPage::schliesseVorlage()
{
    if (zeigtVorlage_ && viewer)
        viewer("");
    zeigtVorlage_ = false;
}

// --- saved filters and edited values ---------------------------------------------------------------------------

bool FilterPage::filterSpeichern(std::string_view TxtFilterSave)
{
    bool gespeichert = false;
    perform("Filterwerte", "Fehler beim Speichern der Filterwerte!",
            [&] { gespeichert = speichereFilter(kontext_, TxtFilterSave); });
    return gespeichert;
}

void FilterPage::filterLoeschen(std::string_view CbFilterSave)
{
    perform("Filterwerte", "Fehler beim Löschen der Filterwerte!", [&] { loescheFilter(kontext_, CbFilterSave); });
}

void FilterPage::filterVerwenden(std::string_view CbFilterSave)
{
    perform("Filterwerte", "Fehler beim Verwenden der Filterwerte!", [&] {
        const auto text = gewaehlterFilter(kontext_, CbFilterSave);
        if (!text)
            return;
        UseSavedFilter(kontext_, *text);
        if (!bereichVorhanden(kontext_.bereich()))
            return leere();
        fuelleBereich();
    });
}

void FilterPage::nutzeGespeicherten(std::string_view Filtername)
{
    perform("Filterfavoriten", "Fehler beim Filtern nach Standard!", [&] {
        kontext_.tab = kontext_.tables.tab();
        const std::string text = SavedFilterString(kontext_.session, kontext_.tab, Filtername);
        if (text.empty())
            return;
        UseSavedFilter(kontext_, text);
        FilterEigenMerkBenutzDef(kontext_);
    });
}

void FilterPage::wertGeaendert(std::size_t zeile, std::string_view wert)
{
    perform("Filterwerte", "Fehler beim Ändern der Filterwerte!", [&] {
        if (zeile >= kontext_.FilterWerteTabelle().size())
            return; // The row is gone.
        if (setRowValue(kontext_.zustand(), zeile, wert))
            return followRows();
        kontext_.ports().meldungen.warnung("Filterwerte", trim(wert).empty()
                                                              ? "Es muss ein Filterwert angegeben werden!"
                                                              : fmt::format("'{}' ist kein Datum!", wert));
    });
}

void FilterPage::sterneErgaenzen()
{
    perform("Filterwerte", "Fehler beim Ändern der Filterwerte!", [&] {
        ergaenzeSterne(kontext_);
        followRows();
    });
}

// The lists of the structure features are those of the branch as it reads now.
void FilterPage::followRows()
{
    if (kontext_.bereich() == Filterbereich::Struktur)
        fuelleStruktur();
}

// --- for the projection ----------------------------------------------------------------------------------------

std::string FilterPage::titel() const
{
    constexpr int BAUGRUPPE = 2, ZEICHNUNG = 3; // These two stand in the singular.
    const int tab = kontext_.tab;
    const bool einzahl = tab == BAUGRUPPE || tab == ZEICHNUNG;
    return fmt::format("    Solid Edge - Filterwerte für {}",
                       einzahl ? kontext_.session.einzahl(tab) : kontext_.session.mehrzahl(tab));
}

std::string FilterPage::kopfFilterwerte() const
{
    return kontext_.bereich() == Filterbereich::BenutzDef ? "      Filterwerte ( * am Anfang u. Ende/oder nur am Ende)"
                                                          : "      Filterwerte";
}

std::string FilterPage::zugriffText() const
{
    const SessionState& session = kontext_.session;
    if (session.rights.siehtAlleStati())
        return zugriffstext(session);
    std::string text = "Berechtigung:"; // No short form for a single status, unlike the document page.
    for (std::size_t status = 0; status < STATUS.size(); ++status)
        if (session.rights.Sichtbar[status] == 1)
            text += STATUS[status].kurz;
    return text;
}

std::vector<std::string> FilterPage::gespeicherteFilter() const
{
    return gespeicherteNamen(kontext_.session, kontext_.tab);
}

bool FilterPage::bereichVorhanden(Filterbereich bereich) const
{
    return bereich != Filterbereich::BenutzDef || benutzDefVorhanden_;
}

std::string FilterPage::vorlagePfad() const
{
    return struktur_.vorlage();
}

Zeitpunkt FilterPage::heute() const
{
    return kontext_.ports().uhr.jetzt();
}

} // namespace quelvarn
