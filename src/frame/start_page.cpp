#include "frame/start_page.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "platform/boxes.h"
#include "platform/environment.h"
#include "session/database_start.h"
#include "session/error_report.h"
#include "session/local_settings.h"
#include "session/settings_writer.h"
#include "session/sibling_programs.h"
#include "session/tree_switches.h"

#include <algorithm>
#include <cassert>

namespace quelvarn {

namespace {

std::string databaseLine(std::string_view documentPath)
{
    return "  Datenbank:  " + DateiName(documentPath);
}

} // namespace

StartPage::StartPage(SessionState& session, Operations& operations, MainWindow& frame)
    : session_(session), operations_(operations), ports_(operations.ports()), frame_(frame),
      selection_(operations.ports(), ".mdb")
{
    frame_.addListener(*this);
}

// --- load and unload -------------------------------------------------------------------------------------------

void StartPage::pageShown(Page page)
{
    if (page != Page::Start)
        return;
    if (!session_.pages.FormDBGeladen)
        laden();
    if (!session_.database.DatenbankPfad.empty()) {
        fillStatusBar(session_.database.DatenbankPfad);
        fileNamePanel_ = databaseLine(session_.database.DatenbankPfad);
    }
    operations_.changed(Part::StartPage);
}

void StartPage::laden()
{
    operations_.perform(Part::StartPage, "Laden der Start-Form", "Fehler beim Laden der Start-Form!", [&] {
        session_.pages.FormDBGeladen = true;
        showDatabaseInChooser();
        chosenPath_ = session_.database.DatenbankPfad;
        labelDB_ = chosenPath_.empty() ? "" : databaseLine(chosenPath_);
        fillStatusBar(chosenPath_);
        showSolidEdge();
        frame_.configureTools();
    });
}

void StartPage::unload()
{
    saveSettings(ports_, "Schließen der Startseite", "Fehler beim Schließen der Startseite!", [&] {
        if (session_.pages.FormDBGeladen && session_.database.DatenbankOk)
            writeStartPage(session_);
    });
    session_.pages.FormDBGeladen = false;
}

void StartPage::showDatabaseInChooser()
{
    const auto succeeds = [](auto&& step) {
        try {
            step();
            return true;
        } catch (const RuntimeError&) {
            return false; // The chooser then keeps what it shows.
        }
    };
    selection_.readDrives();
    if (!session_.database.DatenbankPfad.empty() &&
        succeeds([&] { selection_.showFile(session_.database.DatenbankPfad); }))
        return;
    if (succeeds([&] { selection_.setDrive(ports_.environment.systemDrive()); }))
        return;
    const auto& drives = selection_.drives();
    std::any_of(drives.begin(), drives.end(),
                [&](const std::string& entry) { return succeeds([&] { selection_.setDrive(entry); }); });
}

void StartPage::fillStatusBar(std::string_view documentPath)
{
    operations_.perform(Part::StartPage, "Einrichten der Statusbar", "Fehler beim Einrichten der Statusbar 'Start'!",
                        [&] {
                            fileNamePanel_ = DateiName(documentPath);
                            pathNamePanel_ = Ordnername(documentPath);
                        });
}

void StartPage::showSolidEdge()
{
    const SolidEdgeInfo& solidEdge = frame_.solidEdge();
    const bool onlyViewer = solidEdge.onlyViewer();
    lblVersion_ = solidEdge.version.empty() ? " Solid Edge Version?"
                                            : (onlyViewer ? "SmartView " : "Solid Edge ") + solidEdge.version;
    lblPfad_ = solidEdge.documentPath.empty() ? "Pfadname zu Solid Edge???" : solidEdge.documentPath;

    cadEventsVisible_ = !onlyViewer;
    cadEventsReady_ = session_.rights.mayEdit();
    if (onlyViewer || !cadEventsReady_)
        session_.pages.ActiveQuelvarn = false;
}

// --- choosing a file -------------------------------------------------------------------------------------------

void StartPage::driveChosen(std::string_view entry)
{
    try {
        selection_.setDrive(entry);
    } catch (const RuntimeError&) {
        ports_.boxes.warn("Start: Fehler beim Laufwerk", "Das Laufwerk ist nicht eingerichtet oder\n"
                                                         "es ist wahrscheinlich kein Datenträger im Laufwerk!");
    }
    operations_.changed(Part::StartPage);
}

void StartPage::folderChosen(std::string_view folder)
{
    operations_.perform(Part::StartPage, "Start: Wechsel Verzeichnis", "Fehler beim Wechsel Verzeichnis",
                        [&] { selection_.setFolder(folder); });
}

void StartPage::upwards()
{
    operations_.perform(Part::StartPage, "Start: Wechsel Verzeichnis", "Fehler beim Wechsel Verzeichnis",
                        [&] { selection_.upwards(); });
}

void StartPage::fileChosen(std::string_view name)
{
    operations_.perform(Part::StartPage, "Auswahl der Datenbank", "Fehler bei Auswahl der Datenbank!", [&] {
        if (CheckSiblingsRunning(ports_))
            return;
        session_.database.DatenbankOk = false;
        const std::string newPath = selection_.documentPath(name);
        if (!confirmsChange(newPath))
            return;
        selection_.chooseFile(name);
        chosenPath_ = newPath;
        fillStatusBar(newPath);
        frame_.setTitle(newPath);
        labelDB_ = databaseLine(newPath);
    });
}

bool StartPage::confirmsChange(std::string_view newPath)
{
    return ports_.boxes.ask("Wechsel der Datenbank",
                            lines({
                                "Nach Drücken der Schaltfläche <Öffnen> wechselt die Datenbank",
                                "",
                                "von:    " + session_.database.DatenbankPfad,
                                "nach:  " + std::string(newPath),
                                "",
                                "Möchten Sie fortfahren?",
                            }));
}

// --- the two actions -------------------------------------------------------------------------------------------

void StartPage::open()
{
    operations_.perform(Part::StartPage, "Öffnen der Datenbank", "Fehler beim Öffnen der Datenbank!", [&] {
        frame_.notify([](SessionListener& listener) { listener.reset(); });
        if (labelDB_.empty()) {
            ports_.boxes.warn("Start: Name der Datenbank", "Es wurde keine Datenbank ausgewählt");
            return;
        }
        session_.database.DatenbankPfad = chosenPath_;
        SchreibeDatenbankPfad(session_.folders, ports_, chosenPath_);
        frame_.notify([](SessionListener& listener) { listener.databaseChanges(); });
        if (Hauptprogramm(session_, ports_))
            adoptDatabase();
        else
            databaseLost();
    });
}

void StartPage::openAgain()
{
    frame_.notify([](SessionListener& listener) { listener.reset(); });
    frame_.notify([](SessionListener& listener) { listener.databaseChanges(); });
    if (Hauptprogramm(session_, ports_)) {
        adoptDatabase();
    } else {
        databaseLost();
        frame_.showPage(Page::Start);
        frame_.setTitle(session_.database.DatenbankPfad);
    }
    operations_.changed(Part::StartPage);
}

void StartPage::databaseLost()
{
    session_.database.DatenbankOk = false;
    cadEventsVisible_ = false;
    frame_.configureTools();
    frame_.RefreshStatusBar();
    frame_.configureTimers();
}

void StartPage::adoptDatabase()
{
    session_.database.DatenbankOk = true;
    showSolidEdge();
    frame_.notify([](SessionListener& listener) { listener.databaseChanged(); });
    frame_.showPage(Page::Documents);
    frame_.setTitle(session_.database.DatenbankPfad);
    frame_.RefreshStatusBar();
    frame_.configureTimers();
    frame_.configureTools();
}

void StartPage::leave()
{
    if (!session_.database.DatenbankPfad.empty())
        return frame_.showPage(Page::Documents);
    if (ports_.boxes.ask("Auswahl Datenbank", lines({
                                                  "Es wurde keine Datenbank ausgewählt!",
                                                  "",
                                                  "Möchten Sie Quelvarn beenden?",
                                                  "",
                                              })))
        frame_.unload();
}

// --- settings of the user --------------------------------------------------------------------------------------

void StartPage::setActiveSE(bool on)
{
    session_.pages.ActiveQuelvarn = on && cadEventsVisible_ && cadEventsReady_;
    frame_.configureTools();
    operations_.changed(Part::StartPage);
}

std::string_view StartPage::LblActiveSE() const
{
    return session_.pages.ActiveQuelvarn ? "Ereignis wird ausgewertet." : "Ereignis wird NICHT ausgewertet.";
}

void StartPage::setOption(std::size_t row, bool on)
{
    assert(row < TREE_SWITCHES.size());
    operations_.perform(Part::StartPage, "Einstellungen TREEVIEW", "Fehler bei den Einstellungen TREEVIEW!", [&] {
        session_.Tree.*TREE_SWITCHES[row].field = on;
        frame_.notify([](SessionListener& listener) { listener.treeSwitchesChanged(); });
    });
}

void StartPage::setInfoPrio1(int index, bool on)
{
    setOption(static_cast<std::size_t>(index), on);
}

void StartPage::setInfoPrio2(int index, bool on)
{
    setOption(INFO_PRIO_1_COUNT + static_cast<std::size_t>(index), on);
}

bool StartPage::infoPrio1(int index) const
{
    return session_.Tree.*TREE_SWITCHES[static_cast<std::size_t>(index)].field;
}

bool StartPage::infoPrio2(int index) const
{
    return session_.Tree.*TREE_SWITCHES[INFO_PRIO_1_COUNT + static_cast<std::size_t>(index)].field;
}

void StartPage::offlineToolChosen(int index)
{
    session_.orders.OfflineTool = OFFLINE_TOOLS[static_cast<std::size_t>(index)];
    frame_.notify([](SessionListener& listener) { listener.offlineToolChanged(); });
    operations_.changed(Part::StartPage);
}

int StartPage::offlineTool() const
{
    return session_.orders.OfflineTool == OFFLINE_TOOLS[0] ? 0 : 1;
}

void StartPage::setLocalOrders(bool on)
{
    session_.orders.OrdersLocal = on;
    operations_.changed(Part::StartPage);
}

} // namespace quelvarn
