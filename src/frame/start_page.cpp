#include "frame/start_page.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "platform/boxes.h"
#include "platform/environment.h"
#include "session/error_report.h"
#include "session/local_settings.h"
#include "session/program.h"
#include "session/settings_writer.h"
#include "session/tree_switches.h"

#include <algorithm>
#include <cassert>

namespace quelvarn {

namespace {

std::string datenbankzeile(std::string_view pfad)
{
    return "  Datenbank:  " + DateiName(pfad);
}

} // namespace

StartPage::StartPage(SessionState& session, Operations& operations, MainWindow& rahmen)
    : session_(session), operations_(operations), ports_(operations.ports()), rahmen_(rahmen),
      auswahl_(operations.ports(), ".mdb")
{
    rahmen_.meldeAn(*this);
}

// --- load and unload -------------------------------------------------------------------------------------------

void StartPage::seiteGezeigt(Seite seite)
{
    if (seite != Seite::Start)
        return;
    if (!session_.pages.FormDBGeladen)
        laden();
    if (!session_.database.DatenbankPfad.empty()) {
        fuelleStatusBar(session_.database.DatenbankPfad);
        dateinamePanel_ = datenbankzeile(session_.database.DatenbankPfad);
    }
    operations_.changed(Part::StartPage);
}

void StartPage::laden()
{
    operations_.perform(Part::StartPage, "Laden der Start-Form", "Fehler beim Laden der Start-Form!", [&] {
        session_.pages.FormDBGeladen = true;
        zeigeDatenbankImWaehler();
        gewaehlterPfad_ = session_.database.DatenbankPfad;
        labelDB_ = gewaehlterPfad_.empty() ? "" : datenbankzeile(gewaehlterPfad_);
        fuelleStatusBar(gewaehlterPfad_);
        zeigeSolidEdge();
        rahmen_.stelleWerkzeugeEin();
    });
}

void StartPage::entladen()
{
    saveSettings(ports_, "Schließen der Startseite", "Fehler beim Schließen der Startseite!", [&] {
        if (session_.pages.FormDBGeladen && session_.database.DatenbankOk)
            schreibeStartseite(session_);
    });
    session_.pages.FormDBGeladen = false;
}

void StartPage::zeigeDatenbankImWaehler()
{
    const auto gelingt = [](auto&& schritt) {
        try {
            schritt();
            return true;
        } catch (const Laufzeitfehler&) {
            return false; // The chooser then keeps what it shows.
        }
    };
    auswahl_.liesLaufwerke();
    if (!session_.database.DatenbankPfad.empty() &&
        gelingt([&] { auswahl_.zeigeDatei(session_.database.DatenbankPfad); }))
        return;
    if (gelingt([&] { auswahl_.setzeLaufwerk(ports_.umgebung.systemlaufwerk()); }))
        return;
    const auto& laufwerke = auswahl_.laufwerke();
    std::any_of(laufwerke.begin(), laufwerke.end(),
                [&](const std::string& eintrag) { return gelingt([&] { auswahl_.setzeLaufwerk(eintrag); }); });
}

void StartPage::fuelleStatusBar(std::string_view pfad)
{
    operations_.perform(Part::StartPage, "Einrichten der Statusbar", "Fehler beim Einrichten der Statusbar 'Start'!",
                        [&] {
                            dateinamePanel_ = DateiName(pfad);
                            pfadnamePanel_ = Ordnername(pfad);
                        });
}

void StartPage::zeigeSolidEdge()
{
    const SolidEdgeInfo& solidEdge = rahmen_.solidEdge();
    const bool nurViewer = solidEdge.nurViewer();
    lblVersion_ = solidEdge.version.empty() ? " Solid Edge Version?"
                                            : (nurViewer ? "SmartView " : "Solid Edge ") + solidEdge.version;
    lblPfad_ = solidEdge.pfad.empty() ? "Pfadname zu Solid Edge???" : solidEdge.pfad;

    activeSESichtbar_ = !nurViewer;
    activeSEBereit_ = session_.rights.darfBearbeiten();
    if (nurViewer || !activeSEBereit_)
        session_.pages.ActiveQuelvarn = false;
}

// --- choosing a file -------------------------------------------------------------------------------------------

void StartPage::laufwerkGewaehlt(std::string_view eintrag)
{
    try {
        auswahl_.setzeLaufwerk(eintrag);
    } catch (const Laufzeitfehler&) {
        ports_.meldungen.warnung("Start: Fehler beim Laufwerk", "Das Laufwerk ist nicht eingerichtet oder\n"
                                                                "es ist wahrscheinlich kein Datenträger im Laufwerk!");
    }
    operations_.changed(Part::StartPage);
}

void StartPage::ordnerGewaehlt(std::string_view ordner)
{
    operations_.perform(Part::StartPage, "Start: Wechsel Verzeichnis", "Fehler beim Wechsel Verzeichnis",
                        [&] { auswahl_.setzeOrdner(ordner); });
}

void StartPage::nachOben()
{
    operations_.perform(Part::StartPage, "Start: Wechsel Verzeichnis", "Fehler beim Wechsel Verzeichnis",
                        [&] { auswahl_.nachOben(); });
}

void StartPage::dateiGewaehlt(std::string_view name)
{
    operations_.perform(Part::StartPage, "Auswahl der Datenbank", "Fehler bei Auswahl der Datenbank!", [&] {
        if (CheckSiblingsRunning(ports_))
            return;
        session_.database.DatenbankOk = false;
        const std::string neuerPfad = auswahl_.pfad(name);
        if (!bestaetigtWechsel(neuerPfad))
            return;
        auswahl_.waehleDatei(name);
        gewaehlterPfad_ = neuerPfad;
        fuelleStatusBar(neuerPfad);
        rahmen_.setzeTitel(neuerPfad);
        labelDB_ = datenbankzeile(neuerPfad);
    });
}

bool StartPage::bestaetigtWechsel(std::string_view neuerPfad)
{
    return ports_.meldungen.frage("Wechsel der Datenbank",
                                  zeilen({
                                      "Nach Drücken der Schaltfläche <Öffnen> wechselt die Datenbank",
                                      "",
                                      "von:    " + session_.database.DatenbankPfad,
                                      "nach:  " + std::string(neuerPfad),
                                      "",
                                      "Möchten Sie fortfahren?",
                                  }));
}

// --- the two actions -------------------------------------------------------------------------------------------

void StartPage::oeffnen()
{
    operations_.perform(Part::StartPage, "Öffnen der Datenbank", "Fehler beim Öffnen der Datenbank!", [&] {
        rahmen_.melde([](Rahmenteilnehmer& teilnehmer) { teilnehmer.zuruecksetzen(); });
        if (labelDB_.empty()) {
            ports_.meldungen.warnung("Start: Name der Datenbank", "Es wurde keine Datenbank ausgewählt");
            return;
        }
        session_.database.DatenbankPfad = gewaehlterPfad_;
        SchreibeDatenbankPfad(session_, ports_, gewaehlterPfad_);
        rahmen_.melde([](Rahmenteilnehmer& teilnehmer) { teilnehmer.datenbankWechselt(); });
        if (Hauptprogramm(session_, ports_))
            datenbankUebernehmen();
        else
            datenbankVerloren();
    });
}

void StartPage::openAgain()
{
    rahmen_.melde([](Rahmenteilnehmer& teilnehmer) { teilnehmer.zuruecksetzen(); });
    rahmen_.melde([](Rahmenteilnehmer& teilnehmer) { teilnehmer.datenbankWechselt(); });
    if (Hauptprogramm(session_, ports_)) {
        datenbankUebernehmen();
    } else {
        datenbankVerloren();
        rahmen_.zeigeSeite(Seite::Start);
        rahmen_.setzeTitel(session_.database.DatenbankPfad);
    }
    operations_.changed(Part::StartPage);
}

void StartPage::datenbankVerloren()
{
    session_.database.DatenbankOk = false;
    activeSESichtbar_ = false;
    rahmen_.stelleWerkzeugeEin();
    rahmen_.RefreshStatusBar();
    rahmen_.stelleZeitgeberEin();
}

void StartPage::datenbankUebernehmen()
{
    session_.database.DatenbankOk = true;
    zeigeSolidEdge();
    rahmen_.melde([](Rahmenteilnehmer& teilnehmer) { teilnehmer.datenbankGewechselt(); });
    rahmen_.zeigeSeite(Seite::Dokumente);
    rahmen_.setzeTitel(session_.database.DatenbankPfad);
    rahmen_.RefreshStatusBar();
    rahmen_.stelleZeitgeberEin();
    rahmen_.stelleWerkzeugeEin();
}

void StartPage::verlassen()
{
    if (!session_.database.DatenbankPfad.empty())
        return rahmen_.zeigeSeite(Seite::Dokumente);
    if (ports_.meldungen.frage("Auswahl Datenbank", zeilen({
                                                        "Es wurde keine Datenbank ausgewählt!",
                                                        "",
                                                        "Möchten Sie Quelvarn beenden?",
                                                        "",
                                                    })))
        rahmen_.entladen();
}

// --- settings of the user --------------------------------------------------------------------------------------

void StartPage::setzeActiveSE(bool an)
{
    session_.pages.ActiveQuelvarn = an && activeSESichtbar_ && activeSEBereit_;
    rahmen_.stelleWerkzeugeEin();
    operations_.changed(Part::StartPage);
}

std::string_view StartPage::LblActiveSE() const
{
    return session_.pages.ActiveQuelvarn ? "Ereignis wird ausgewertet." : "Ereignis wird NICHT ausgewertet.";
}

void StartPage::setzeSchalter(std::size_t zeile, bool an)
{
    assert(zeile < BAUMSCHALTER.size());
    operations_.perform(Part::StartPage, "Einstellungen TREEVIEW", "Fehler bei den Einstellungen TREEVIEW!", [&] {
        session_.Tree.*BAUMSCHALTER[zeile].feld = an;
        rahmen_.melde([](Rahmenteilnehmer& teilnehmer) { teilnehmer.baumschalterGeaendert(); });
    });
}

void StartPage::setzeInfoPrio1(int index, bool an)
{
    setzeSchalter(static_cast<std::size_t>(index), an);
}

void StartPage::setzeInfoPrio2(int index, bool an)
{
    setzeSchalter(ANZAHL_INFOPRIO1 + static_cast<std::size_t>(index), an);
}

bool StartPage::infoPrio1(int index) const
{
    return session_.Tree.*BAUMSCHALTER[static_cast<std::size_t>(index)].feld;
}

bool StartPage::infoPrio2(int index) const
{
    return session_.Tree.*BAUMSCHALTER[ANZAHL_INFOPRIO1 + static_cast<std::size_t>(index)].feld;
}

void StartPage::offlineToolGewaehlt(int index)
{
    session_.orders.OfflineTool = OFFLINE_TOOLS[static_cast<std::size_t>(index)];
    rahmen_.melde([](Rahmenteilnehmer& teilnehmer) { teilnehmer.offlineToolGeaendert(); });
    operations_.changed(Part::StartPage);
}

int StartPage::offlineTool() const
{
    return session_.orders.OfflineTool == OFFLINE_TOOLS[0] ? 0 : 1;
}

void StartPage::setzeLokaleAuftraege(bool an)
{
    session_.orders.AuftraegeLokal = an;
    operations_.changed(Part::StartPage);
}

} // namespace quelvarn
