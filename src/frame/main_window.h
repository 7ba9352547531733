#pragma once

#include "session/operations.h"
#include "session/session_listener.h"
#include "session/session_state.h"
#include "session/solid_edge_info.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// The buttons of ToolbarMidiFrm, in their order.
enum class Werkzeug {
    Bearbeiten,
    EinfuegenBaugr,
    PlazierenZchn,
    SmartViewer,
    Extras,
    Weiterleiten,
    Nachrichten,
    Beenden
};
inline constexpr int ANZAHL_WERKZEUGE = 8;

struct Werkzeugknopf
{
    std::string_view beschriftung;
    std::string_view tooltip;
    bool sichtbar = true;
};

struct Zeitgeber
{
    bool an = false;
    int intervall = 0; // milliseconds
};

// "Innerhalb 30,0 Sek. benachrichtigen Ja/Nein.", or that nobody is told.
std::string benachrichtigungstext(const SessionState& session);

// State and operations of the frame MDIForm1: which page is in front, tool bar, caption, status bar, timers.
class MainWindow
{
public:
    MainWindow(SessionState& session, Operations& operations, SolidEdgeInfo solidEdge);
    void meldeAn(Rahmenteilnehmer& teilnehmer) { teilnehmer_.push_back(&teilnehmer); }
    // What a button does when the frame has nothing against it.
    void setzeAktion(Werkzeug knopf, std::function<void()> aktion);

    // --- operations, one for each thing a person can do ---
    // Runs once the window is on screen. False when the program ends.
    bool laden();
    void zuSeite(Seite ziel);
    void werkzeugGewaehlt(Werkzeug knopf);
    void edit(); // A document was double-clicked: what "Bearbeiten" does, where there is such a button.
    // The time of TimerDBUpdate has come.
    void tickDBUpdate();
    // The pages write their rows, the connection goes, `beendet` is called. Only the first call counts.
    void entladen();

    // --- mechanisms that the start page uses ---
    void zeigeSeite(Seite ziel);
    void setzeTitel(std::string_view datenbankPfad);
    void RefreshStatusBar();
    void stelleWerkzeugeEin();
    void stelleZeitgeberEin();
    void melde(const std::function<void(Rahmenteilnehmer&)>& ereignis);

    // --- state, for the projection ---
    Seite seite() const { return seite_; }
    const std::string& titel() const { return titel_; }
    const Werkzeugknopf& knopf(Werkzeug knopf) const { return knoepfe_[static_cast<std::size_t>(knopf)]; }
    bool hatAktion(Werkzeug knopf) const;
    // The texts of StatusBarUpdate from the left. Indicator panels are empty here (see DokuTyp::aenderungspanel).
    const std::vector<std::string>& statuspanel() const { return statuspanel_; }
    bool zeigtAenderungen() const { return statuspanel_.size() > 2; }
    Zeitgeber TimerDBUpdate() const { return timerDBUpdate_; }
    Zeitgeber TimerCheckInOut() const { return timerCheckInOut_; }
    Zeitgeber TimerWorkflow() const { return timerWorkflow_; }
    const SolidEdgeInfo& solidEdge() const { return solidEdge_; }

    std::function<void()> watchDatabase; // Looks after the file of the open database, at each tick.
    std::function<void()> beendet;       // The window goes, the program ends.

private:
    void oeffneErsteSeite();
    void reachReplacedFile();
    bool forwardAn(std::string_view titel, std::string_view ersteZeile);

    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    SolidEdgeInfo solidEdge_;
    std::vector<Rahmenteilnehmer*> teilnehmer_;
    std::array<std::function<void()>, ANZAHL_WERKZEUGE> aktionen_;
    std::array<Werkzeugknopf, ANZAHL_WERKZEUGE> knoepfe_;
    Seite seite_ = Seite::Keine;
    std::string titel_;
    std::vector<std::string> statuspanel_;
    Zeitgeber timerDBUpdate_, timerCheckInOut_, timerWorkflow_;
    bool entladen_ = false;
};

} // namespace quelvarn
