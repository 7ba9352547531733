#pragma once

#include "frame/file_chooser.h"
#include "frame/main_window.h"
#include "session/operations.h"
#include "session/session_state.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

// The options of OpOfflinePlot, by its index.
inline constexpr std::array<std::string_view, 2> OFFLINE_TOOLS{"Druvik", "Talvik"};

// State and operations of the start page FormDB: choosing the database, and the settings of the user.
class StartPage : public Rahmenteilnehmer
{
public:
    // Follows the frame by itself.
    StartPage(SessionState& session, Operations& operations, MainWindow& rahmen);

    // --- operations, one for each thing a person can do ---
    void laufwerkGewaehlt(std::string_view eintrag); // DriveDB
    void ordnerGewaehlt(std::string_view ordner);    // DirDB, a whole path
    void nachOben();                                 // TbUpDB
    void dateiGewaehlt(std::string_view name);       // FileDB
    void oeffnen();
    // The open database, from the file that stands under its path now.
    void openAgain();
    void verlassen();
    void setzeActiveSE(bool an);             // TggBtActiveSE
    void setzeInfoPrio1(int index, bool an); // ChInfoPrio1
    void setzeInfoPrio2(int index, bool an); // ChInfoPrio2
    void offlineToolGewaehlt(int index);     // OpOfflinePlot
    void setzeLokaleAuftraege(bool an);      // ChLocalOrder

    // --- state, for the projection ---
    const Dateiauswahl& auswahl() const { return auswahl_; }
    const std::string& LabelDB() const { return labelDB_; }
    const std::string& dateinamePanel() const { return dateinamePanel_; } // StatusBarDB
    const std::string& pfadnamePanel() const { return pfadnamePanel_; }
    const std::string& LblSolidEdgeVersion() const { return lblVersion_; }
    const std::string& LblSolidEdgePfad() const { return lblPfad_; }
    bool activeSESichtbar() const { return activeSESichtbar_; } // FrmActiveSE
    bool activeSEBereit() const { return activeSEBereit_; }
    bool activeSE() const { return session_.pages.ActiveQuelvarn; }
    std::string_view LblActiveSE() const;
    bool infoPrio1(int index) const;
    bool infoPrio2(int index) const;
    int offlineTool() const; // Index in OFFLINE_TOOLS
    bool lokaleAuftraege() const { return session_.orders.AuftraegeLokal; }

    // --- what the frame tells ---
    void seiteGezeigt(Seite seite) override;
    void entladen() override;

private:
    void laden();
    void zeigeDatenbankImWaehler();
    void fuelleStatusBar(std::string_view pfad);
    void zeigeSolidEdge();
    bool bestaetigtWechsel(std::string_view neuerPfad);
    void datenbankVerloren();
    void datenbankUebernehmen();
    void setzeSchalter(std::size_t zeile, bool an);

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    MainWindow& rahmen_;
    Dateiauswahl auswahl_;
    std::string gewaehlterPfad_; // What LabelDB names and "Öffnen" opens.
    std::string labelDB_;
    std::string dateinamePanel_, pfadnamePanel_;
    std::string lblVersion_, lblPfad_;
    bool activeSESichtbar_ = true;
    bool activeSEBereit_ = true;
};

} // namespace quelvarn
