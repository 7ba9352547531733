#pragma once

#include "database/document_types.h"
#include "database/recordset.h"
#include "platform/ports.h"
#include "register/document_record.h"
#include "register/info_pages.h"
#include "register/property_tree.h"
#include "session/session_state.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

enum TabellenZustand : int {
    NichtOffen = 0,
    Leer = 1,
    Offen = 2,
    Gefiltert = 3,
    NeuereDaten = 4,
    Neuaufbau = 9,
    Filterergebnis = 11,
};

// Which page stands on the right. The numbers are the indexes of FrmInfoDoku.
enum class InfoSeite : int {
    Revisionen = 0,
    Allgemein = 1,
    BenutzDef = 2,
    Hauptmerkmale = 3,
    ZusDoku = 4,
    StichKomm = 5,
    InZeichnung = 6,
    InBaugruppe = 7,
    BestehtAus = 8,
    InSchweissteil = 9,
    Datei = 10,
    Enthaelt = 11,
    EnthaeltBaugruppe = 12,
    SendTo = 13,
    Keine = -1,
};

struct Statuskopf
{
    std::string text;
    unsigned farbe = 0; // RGB
    bool breit = false; // "<Name> 'In Arbeit'" needs more room.
};

// One of the eight tables with its row copy and tree.
struct Tabellenseite
{
    Recordset tabelle;
    Recordset FilterErgebnis;
    std::size_t anzahl = 0; // Rows at the opening.
    int zustand = NichtOffen;
    Zeitpunkt naechstePruefung;
    DokuRecord record;
    Eigenschaftsbaum baum;
    bool filterListeGefuellt = false;   // The page's list of filter values has rows.
    std::string filterBeschreibung;     // Text of a quick filter, "" for none.

    // What the grid shows: FilterErgebnis at state 11, else the table.
    Recordset& sichtbar() { return zustand == Filterergebnis ? FilterErgebnis : tabelle; }
    const Recordset& sichtbar() const { return zustand == Filterergebnis ? FilterErgebnis : tabelle; }
};

// State and operations of the document page.
class DocumentPage
{
public:
    DocumentPage(SessionState& session, Ports& ports);

    // --- operations, one for each thing a person can do ---
    // Runs when the page is shown; does its work once per database.
    void StartTabelleZeigen();
    void tabGewaehlt(int tab);
    // A grid row was clicked or became current: its position among the rows left.
    void zeileGewaehlt(std::size_t position);
    void zeileVor();
    void neuaufbauen();
    void knotenGewaehlt(std::string_view text);
    void knotenAufgeklappt();
    // Button 8 of the left bar: lifts a filter, or goes to the first row.
    void zurueck();
    // The read-only and archive boxes of the file properties page.
    void setzeSchreibschutz(bool gesetzt);
    void setzeArchiv(bool gesetzt);
    // Writes Suchen/Filtern, Starttabelle and OfflineDaten. The page closes.
    void schliessen();
    // Another database was opened: nothing is open any more.
    void datenbankGewechselt();
    void baumschalterGeaendert();

    // --- mechanisms that other pages and operations use ---
    void TabelleNeuLaden(int tab);
    void TabelleWechseln();
    void ZeileAktualisieren(int tab);
    void filterAufheben(int tab);

    // --- state, for the projection ---
    int tab() const { return tab_; }
    const Tabellenseite& seite(int tab) const { return seiten_[tab]; }
    Tabellenseite& seite(int tab) { return seiten_[tab]; }
    const Tabellenseite& aktuelleSeite() const { return seiten_[tab_]; }
    std::string anzahlText() const;       // LabelSEDoku
    std::string zugriffText() const;      // LblZugriffSEDoku
    std::string infoKopf() const;         // LblInfo head: "  Eigenschaften Bauteil"
    const Statuskopf& statuskopf() const { return statuskopf_; }
    const std::string& dateinamePanel() const { return dateinamePanel_; } // panel 2 of StatusBarDatei
    const std::string& ordnerPanel() const { return ordnerPanel_; }       // panel 4
    bool filterKnopf() const;              // Button 8 shows the filter image.
    std::string zurueckTooltip() const;
    InfoSeite infoSeite() const { return infoSeite_; }
    const AllgemeineSeite& allgemein() const { return allgemein_; }
    const DateiSeite& datei() const { return datei_; }
    int SeitenModus() const { return seitenModus_; }
    // Texts of the indicator panels of StatusBarUpdate, by tab of the five file types.
    const std::array<std::string, 5>& aenderungspanel() const { return aenderungspanel_; }

    // Called after each operation that changed something to show.
    std::function<void()> geaendert;

private:
    SessionState& session_;
    Ports& ports_;
    std::array<Tabellenseite, ANZAHL_DOKUTYPEN> seiten_;
    int tab_ = 0;
    std::string gemerkterPfad_;
    int seitenModus_ = 1;
    std::array<int, 6> seitenMerker_{};
    Statuskopf statuskopf_;
    std::string dateinamePanel_;
    std::string ordnerPanel_;
    InfoSeite infoSeite_ = InfoSeite::Keine;
    AllgemeineSeite allgemein_;
    DateiSeite datei_;
    std::array<std::string, 5> aenderungspanel_;
};

} // namespace quelvarn
