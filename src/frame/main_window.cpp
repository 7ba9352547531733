#include "frame/main_window.h"

#include "base/number_format.h"
#include "base/text.h"
#include "database/document_types.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/running_programs.h"
#include "session/error_report.h"
#include "session/program_caption.h"
#include "session/sibling_programs.h"

#include <fmt/format.h>
#include <utility>

namespace quelvarn {

namespace {

constexpr std::size_t FILE_TYPE_COUNT = 5; // The types with a stamp, which the status bar watches.

constexpr std::array<ToolButton, TOOL_COUNT> BUTTONS{{
    {"Bearbeiten", "Bearbeiten mit Solid Edge"},
    {"Einfügen Baugr.", "Einfügen in Baugruppe"},
    {"Plazieren Zchn.", "Plazieren auf Zeichnung"},
    {"SmartViewer", "Anschauen des aktuellen SE-Dokuments"},
    {"Extras", "Extras"},
    {"Weiterleiten", "Weiterleiten Doku. an Anwender im lokalen Netz"},
    {"Nachrichten....", "Nachrichten von Anwendern im lokalen Netz"},
    {"Beenden", ""},
}};

std::string secondsText(int milliseconds)
{
    return formatSeconds(milliseconds / 1000.0);
}

} // namespace

std::string notificationText(const UseSettings& use)
{
    if (use.Zeitintervall > 0 && use.ForwardOn)
        return "Innerhalb " + secondsText(use.Zeitintervall) + " Sek. benachrichtigen Ja/Nein.";
    return "Zeitintervall = 0. Es erfogt keine Benachrichtigung.";
}

MainWindow::MainWindow(SessionState& session, Operations& operations, SolidEdgeInfo solidEdge)
    : session_(session), operations_(operations), ports_(operations.ports()), solidEdge_(std::move(solidEdge)),
      buttons_(BUTTONS)
{}

void MainWindow::setAction(Tool button, std::function<void()> action)
{
    actions_[static_cast<std::size_t>(button)] = std::move(action);
}

bool MainWindow::hasAction(Tool button) const
{
    if (button == Tool::Quit)
        return true;
    // The box that forwarding is off is an answer as well.
    if (!session_.use.ForwardOn && (button == Tool::Forward || button == Tool::Messages))
        return true;
    return static_cast<bool>(actions_[static_cast<std::size_t>(button)]);
}

bool MainWindow::laden()
{
    const std::string text = lines({
        "Fehler beim Laden der 'MDI-Form'!",
        "",
        "Mögliche Ursache:",
        "- Sytemvoraussetzungen fehlen",
        "- Der Solid Edge Viewer ist nicht installiert",
        "",
        "Hinweis:",
        "Er ist im Setup im Ordner 'Viewer' als SetupSEV.exe enthalten.",
        "",
        "Das Programm wird beendet.",
    });
    bool further = true;
    const bool loaded = operations_.perform(Part::Frame, "Fehler beim Laden der 'MDI-Form'!", text, [&] {
        configureTools();
        RefreshStatusBar();
        openFirstPage();
        setTitle(session_.database.DatenbankPfad);
        configureTimers();
        further = CheckAlreadyRunning(ports_);
    });
    if (!loaded || !further)
        unload();
    return loaded && further;
}

void MainWindow::openFirstPage()
{
    if (!session_.database.DatenbankOk)
        session_.database.DatenbankPfad.clear();
    showPage(session_.database.DatenbankOk ? Page::Documents : Page::Start);
}

void MainWindow::toPage(Page target)
{
    if (target != Page::Start && session_.database.DatenbankPfad.empty()) {
        ports_.boxes.warn("Auswahl Datenbank", "Es ist keine Datenbank ausgewählt!");
        return;
    }
    if (target == Page::Start)
        notify([](SessionListener& listener) { listener.reset(); });
    else if (target == page_)
        return;
    showPage(target);
}

void MainWindow::showPage(Page target)
{
    page_ = target;
    notify([target](SessionListener& listener) { listener.pageShown(target); });
    operations_.changed(Part::Frame);
}

bool MainWindow::forwardOn(std::string_view title, std::string_view firstRow)
{
    if (session_.use.ForwardOn)
        return true;
    ports_.boxes.warn(title, lines({
                                 firstRow,
                                 "Ini-Tabelle der Datenbank auf '0' gesetzt ist oder fehlt!",
                                 "Eintrag muss lauten:",
                                 "Spalte 'Feld1' = '!QV_Ini'",
                                 "Spalte 'Feld2' = 'OnOff'",
                                 "Spalte 'Feld3' = 'Forward'",
                                 "Spalte 'Feld4' = '1'",
                                 "Nach Änderung muss Quelvarn neu gestartet werden.",
                             }));
    return false;
}

void MainWindow::toolChosen(Tool button)
{
    operations_.perform(Part::Frame, "Toolbar MDI-Form", "Fehler bei Toolbar MDI-Form!", [&] {
        if (button == Tool::Quit)
            return unload();
        if (button == Tool::Forward &&
            !forwardOn("Weiterleiten der Dokumente", "Kein Weiterleiten der Dokumente, da 'Forward' in der"))
            return;
        if (button == Tool::Messages &&
            !forwardOn("Erfassen der Nachrichten", "Die Nachrichten werden nicht registriert, da 'Forward' in der"))
            return;
        if (const auto& action = actions_[static_cast<std::size_t>(button)])
            action();
    });
}

void MainWindow::edit()
{
    if (button(Tool::Edit).visible && hasAction(Tool::Edit))
        toolChosen(Tool::Edit);
}

void MainWindow::tickDBUpdate()
{
    if (watchDatabase && !session_.database.DatenbankPfad.empty())
        watchDatabase();
    operations_.changed(Part::Frame);
}

// The settings of the session belong into the file that the next start opens.
void MainWindow::reachReplacedFile()
{
    if (session_.database.connection.fileState() != FileState::Replaced)
        return;
    try {
        session_.database.connection.Open(ports_.files.systemPath(session_.database.DatenbankPfad));
    } catch (const RuntimeError&) {
        return; // The pages tell that they cannot write.
    }
}

void MainWindow::unload()
{
    if (std::exchange(unload_, true))
        return;
    timerDBUpdate_ = timerCheckInOut_ = timerWorkflow_ = {};
    reachReplacedFile();
    notify([](SessionListener& listener) { listener.unload(); });
    session_.use.CheckInOut = Recordset();
    session_.database.connection.Close();
    if (ended)
        ended();
}

void MainWindow::setTitle(std::string_view databasePath)
{
    title_ = std::string(databasePath) + versionText();
    ports_.programs.ownTitle(title_);
    operations_.changed(Part::Frame);
}

void MainWindow::RefreshStatusBar()
{
    statusPanel_ = {"Änderung DB (" + secondsText(session_.use.Zeitintervall) + " Sek-Takt):"};
    if (session_.use.Zeitintervall <= 0)
        statusPanel_.emplace_back("Keine laufende Überprüfung der Datenbank (siehe Ini-Tabelle 'Timeinterval').");
    for (std::size_t tab = 0; session_.use.Zeitintervall > 0 && tab < FILE_TYPE_COUNT; ++tab) {
        statusPanel_.emplace_back(DOCUMENT_TYPES[tab].singular);
        statusPanel_.emplace_back();
    }
    operations_.changed(Part::Frame);
}

void MainWindow::configureTools()
{
    if (solidEdge_.onlyViewer() || !session_.rights.mayEdit())
        session_.pages.ActiveQuelvarn = false;
    const bool edit = !solidEdge_.onlyViewer() && session_.rights.mayEdit();

    const auto show = [this](Tool button, bool visible) {
        buttons_[static_cast<std::size_t>(button)].visible = visible;
    };
    show(Tool::Edit, edit);
    show(Tool::InsertInAssembly, edit && session_.pages.ActiveQuelvarn);
    show(Tool::PlaceInDrawing, edit && session_.pages.ActiveQuelvarn);
    if (edit)
        buttons_[static_cast<std::size_t>(Tool::Edit)].tooltip =
            session_.pages.ActiveQuelvarn ? "Bearbeiten mit SE, Ereignisse sind aktiv!" : "Bearbeiten mit SE";
    for (const Tool button : {Tool::Extras, Tool::Forward, Tool::Messages})
        show(button, session_.use.ForwardOn);
    operations_.changed(Part::Frame);
}

void MainWindow::configureTimers()
{
    const int interval = session_.use.Zeitintervall;
    const auto timerSetting = [interval](bool on) { return on ? TimerSetting{true, interval} : TimerSetting{}; };
    timerDBUpdate_ = timerSetting(interval > 0);
    timerCheckInOut_ = timerSetting(interval > 0 && session_.use.CheckInOutOn);
    timerWorkflow_ = timerSetting(interval > 0 && session_.use.ForwardOn);
    operations_.changed(Part::Frame);
}

void MainWindow::notify(const std::function<void(SessionListener&)>& event)
{
    for (SessionListener* listener : listener_)
        event(*listener);
}

} // namespace quelvarn
