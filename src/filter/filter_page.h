#pragma once

#include "filter/filter_context.h"
#include "filter/property_section.h"
#include "filter/structure_section.h"
#include "filter/user_defined_section.h"
#include "session/session_listener.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// State and operations of the filter page (FormSEFiltern).
class FilterPage : public Rahmenteilnehmer
{
public:
    FilterPage(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables);

    // --- operations, one for each thing a person can do ---
    void OpenFilterPage(); // For the table that the document page shows.
    void CloseFilterPage();
    void bereichGewaehlt(Filterbereich bereich);                  // SSTabDGFilter
    void filtern();                                               // "Filtern"
    void zurueck();                                               // "Zurück"
    void verlassen();                                             // "Verlassen"
    void werte();                                                 // "Werte"
    void vorlage(bool gedrueckt);                                 // "Vorlage"
    bool filterSpeichern(std::string_view TxtFilterSave);         // CmFilterSave; true when the name was taken.
    void filterVerwenden(std::string_view CbFilterSave);          // CmFilterUse
    void filterLoeschen(std::string_view CbFilterSave);           // CmFilterDelete
    void wertGeaendert(std::size_t zeile, std::string_view wert); // A Wert of the grid was edited.
    void sterneErgaenzen();                                       // CmChangeStar

    // --- for the document page: restores and runs a saved filter of the table shown ---
    void nutzeGespeicherten(std::string_view Filtername);

    // --- what the frame tells ---
    void seiteGezeigt(Seite seite) override;
    void datenbankWechselt() override;
    void entladen() override;

    // --- state, for the projection ---
    Eigenschaftsbereich& eigenschaften() { return eigenschaften_; }
    Strukturbereich& struktur() { return struktur_; }
    BenutzDefBereich& benutzDef() { return benutzDef_; }
    const Filterkontext& kontext() const { return kontext_; }
    std::string titel() const;                           // "    Solid Edge - Filterwerte für Bauteile"
    std::string kopfFilterwerte() const;                 // LblKopfFilterWerte, the grid's head
    std::string zugriffText() const;                     // LblZugriffSEFiltern
    std::vector<std::string> gespeicherteFilter() const; // CbFilterSave; LblAnzFilterwerte is their number
    bool bereichVorhanden(Filterbereich bereich) const;
    bool zeigtVorlage() const { return zeigtVorlage_; }
    std::string vorlagePfad() const; // TxtPfadDateiVorlage
    // Rises when the lists were read anew: what was picked in them is no longer shown.
    unsigned listenfassung() const { return listenfassung_; }
    Zeitpunkt heute() const; // Where the calendar opens.

    std::function<void()> zurDokumentseite; // The page is left.
    // Shows the template in the viewer, "" for nothing; false when it could not.
    std::function<bool(const std::string& filename)> viewer;

private:
    void perform(std::string_view title, std::string_view text, const std::function<void()>& operation);
    void stelleStandWiederHer();
    void leere();
    void fuelleBereich();
    void fuelleStruktur();
    void followRows();
    void schliesseVorlage();
    void oeffneVorlage();

    Filterkontext kontext_;
    Eigenschaftsbereich eigenschaften_;
    Strukturbereich struktur_;
    BenutzDefBereich benutzDef_;
    bool geladen_ = false;
    bool benutzDefVorhanden_ = false;
    bool zeigtVorlage_ = false;
    unsigned listenfassung_ = 0;
};

} // namespace quelvarn
