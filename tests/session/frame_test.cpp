#include "frame/main_window.h"
#include "frame/start_page.h"
#include "session/register_fixture.h"

#include <gmock/gmock.h>

namespace quelvarn {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

namespace {

struct Observer : SessionListener
{
    void pageShown(Page page) override { events.push_back("Seite " + std::to_string(static_cast<int>(page))); }
    void databaseChanges() override { events.emplace_back("wechselt"); }
    void databaseChanged() override { events.emplace_back("gewechselt"); }
    void treeSwitchesChanged() override { events.emplace_back("Baum"); }
    void offlineToolChanged() override { events.emplace_back("Offline"); }
    void unload() override { events.emplace_back("entladen"); }
    std::vector<std::string> events;
};

} // namespace

class Frame : public RegisterTest
{
protected:
    Frame()
    {
        frame.addListener(observer);
        frame.ended = [this] { ended = true; };
    }
    void withoutDatabase()
    {
        session.database.DatenbankPfad.clear();
        ASSERT_TRUE(frame.laden());
    }
    void withDatabase()
    {
        addListener();
        ASSERT_TRUE(frame.laden());
    }
    // What is visible of the tool bar, by first letters, and the first button's tip.
    std::string tools() const
    {
        std::string text;
        for (int i = 0; i < TOOL_COUNT; ++i)
            if (frame.button(static_cast<Tool>(i)).visible)
                text += frame.button(static_cast<Tool>(i)).caption.substr(0, 2);
        return text + "/" + std::string(frame.button(Tool::Edit).tooltip);
    }
    void choose(const std::string& name, Answer answer, const std::string& from, const std::string& to)
    {
        world.boxes.expect("Wechsel der Datenbank",
                           "Nach Drücken der Schaltfläche <Öffnen> wechselt die Datenbank\n\nvon:    " + from +
                               "\nnach:  " + to + "\n\nMöchten Sie fortfahren?",
                           answer);
        start.fileChosen(name);
    }

    MainWindow frame{session, operations, {}};
    StartPage start{session, operations, frame};
    Observer observer;
    bool ended = false;
};

TEST_F(Frame, WithoutADatabaseOnlyTheStartPageIsReached)
{
    withoutDatabase();
    EXPECT_EQ(frame.title(), "    Quelvarn Version 2.0.0");
    EXPECT_EQ(world.programs.own, frame.title());
    EXPECT_EQ(frame.page(), Page::Start);
    EXPECT_EQ(start.LabelDB(), "");
    EXPECT_EQ(start.selection().folder(), "C:\\");
    EXPECT_THAT(frame.statusPanel(),
                ElementsAre("Änderung DB (0,0 Sek-Takt):",
                            "Keine laufende Überprüfung der Datenbank (siehe Ini-Tabelle 'Timeinterval')."));
    EXPECT_FALSE(frame.TimerDBUpdate().on);

    for (const Page page : {Page::Filter, Page::Documents}) {
        world.boxes.expect("Auswahl Datenbank", "Es ist keine Datenbank ausgewählt!");
        frame.toPage(page);
        EXPECT_EQ(frame.page(), Page::Start);
    }
    world.boxes.expect("Start: Name der Datenbank", "Es wurde keine Datenbank ausgewählt");
    start.open();
    const std::string ask = "Es wurde keine Datenbank ausgewählt!\n\nMöchten Sie Quelvarn beenden?\n";
    world.boxes.expect("Auswahl Datenbank", ask, Answer::No);
    start.leave();
    EXPECT_FALSE(ended);
    world.boxes.expect("Auswahl Datenbank", ask, Answer::Yes);
    start.leave();
    EXPECT_TRUE(ended);
}

TEST_F(Frame, WithADatabaseTheDocumentPageComesFirst)
{
    withDatabase();
    EXPECT_EQ(frame.title(), "W:\\Daten\\werk.mdb    Quelvarn Version 2.0.0");
    EXPECT_THAT(observer.events, ElementsAre("Seite 3"));
    EXPECT_THAT(frame.statusPanel(), ElementsAre("Änderung DB (30,0 Sek-Takt):", "Bauteil", "", "Blechteil", "",
                                                 "Baugruppe", "", "Zeichnung", "", "Schweißteil", ""));
    EXPECT_EQ(frame.TimerDBUpdate().interval, 30000);
    EXPECT_TRUE(frame.TimerCheckInOut().on && frame.TimerWorkflow().on);
    EXPECT_EQ(notificationText(session.use), "Innerhalb 30,0 Sek. benachrichtigen Ja/Nein.");

    frame.toPage(Page::Start);
    EXPECT_EQ(start.LabelDB() + start.fileNamePanel() + "+" + start.pathNamePanel(),
              "  Datenbank:  werk.mdb  Datenbank:  werk.mdb+W:\\Daten");
    EXPECT_THAT(start.selection().files(), ElementsAre("werk.mdb"));
    start.leave();
    EXPECT_EQ(frame.page(), Page::Documents);
}

TEST_F(Frame, ToolBarFollowsRightsEventsAndForwarding)
{
    const struct
    {
        std::array<int, STATUS_COUNT> visible;
        bool active, forward;
        std::string viewer, tools;
    } cases[] = {
        {{1, 1, 1, 0, 0, 0}, true, true, "", "BeEiPlSmExWeNaBe/Bearbeiten mit SE, Ereignisse sind aktiv!"},
        {{1, 1, 1, 0, 0, 0}, false, false, "", "BeSmBe/Bearbeiten mit SE"},
        {{1, 1, 0, 1, 1, 1}, true, true, "", "SmExWeNaBe/Bearbeiten mit Solid Edge"},
        {{1, 1, 1, 1, 1, 1}, true, true, "C:\\SmartView", "SmExWeNaBe/Bearbeiten mit Solid Edge"},
    };
    for (const auto& testCase : cases) {
        session.rights.Sichtbar = testCase.visible;
        session.pages.ActiveQuelvarn = testCase.active;
        session.use.ForwardOn = testCase.forward;
        MainWindow window(session, operations, {"16", testCase.viewer});
        window.configureTools();
        std::string text;
        for (int i = 0; i < TOOL_COUNT; ++i)
            if (window.button(static_cast<Tool>(i)).visible)
                text += window.button(static_cast<Tool>(i)).caption.substr(0, 2);
        EXPECT_EQ(text + "/" + std::string(window.button(Tool::Edit).tooltip), testCase.tools);
        EXPECT_EQ(session.pages.ActiveQuelvarn, testCase.tools.starts_with("BeEi"));
    }
}

TEST_F(Frame, ForwardingThatIsOffAnswersWithABox)
{
    const std::string rest = "\nIni-Tabelle der Datenbank auf '0' gesetzt ist oder fehlt!\nEintrag muss lauten:\n"
                             "Spalte 'Feld1' = '!QV_Ini'\nSpalte 'Feld2' = 'OnOff'\nSpalte 'Feld3' = 'Forward'\n"
                             "Spalte 'Feld4' = '1'\nNach Änderung muss Quelvarn neu gestartet werden.";
    int actions = 0;
    frame.setAction(Tool::Forward, [&] { ++actions; });
    world.boxes.expect("Weiterleiten der Dokumente", "Kein Weiterleiten der Dokumente, da 'Forward' in der" + rest);
    frame.toolChosen(Tool::Forward);
    world.boxes.expect("Erfassen der Nachrichten",
                       "Die Nachrichten werden nicht registriert, da 'Forward' in der" + rest);
    frame.toolChosen(Tool::Messages);
    EXPECT_EQ(actions, 0);

    session.use.ForwardOn = true;
    frame.toolChosen(Tool::Forward);
    EXPECT_EQ(actions, 1);
    frame.setAction(Tool::SmartViewer, [] { throw RuntimeError(5, "x", "y"); });
    world.boxes.expect("Toolbar MDI-Form", "Fehler bei Toolbar MDI-Form!");
    world.boxes.answer();
    frame.toolChosen(Tool::SmartViewer);
}

TEST_F(Frame, ASecondCopyThatIsNotWantedEndsAtOnce)
{
    world.programs.other = {"    Quelvarn Version 2.0.0"};
    session.database.DatenbankPfad.clear();
    world.boxes.answer(Answer::No);
    EXPECT_FALSE(frame.laden());
    EXPECT_TRUE(ended);
}

TEST_F(Frame, ChoosingAndOpeningChangesTheDatabase)
{
    withoutDatabase();
    observer.events.clear();
    start.driveChosen("w: [\\\\server\\konstruktion]");
    EXPECT_THAT(start.selection().subfolder(), ElementsAre("Anderes", "Daten", "Plot"));
    start.folderChosen("W:\\Daten");
    world.programs.other = {"Harvel Version 2"};
    world.boxes.answer();
    start.fileChosen("werk.mdb");
    EXPECT_EQ(start.LabelDB(), "");

    world.programs.other.clear();
    choose("werk.mdb", Answer::Yes, "", REGISTER_PATH);
    EXPECT_EQ(start.LabelDB(), "  Datenbank:  werk.mdb");
    EXPECT_EQ(start.fileNamePanel() + "+" + start.pathNamePanel(), "werk.mdb+W:\\Daten");
    EXPECT_EQ(frame.title(), "W:\\Daten\\werk.mdb    Quelvarn Version 2.0.0");
    EXPECT_FALSE(session.database.connection.open());

    world.boxes.answer(); // The welcome.
    start.open();
    EXPECT_TRUE(session.database.DatenbankOk);
    EXPECT_THAT(observer.events, ElementsAre("wechselt", "gewechselt", "Seite 3"));
    EXPECT_EQ(world.files.read("C:\\Quelvarnis.ini"), "W:\\Daten\\werk.mdb\r\n");
    EXPECT_FALSE(start.cadEventsReady()); // A new user does not see statuses 0 to 2.
    EXPECT_EQ(tools(), "SmExWeNaBe/Bearbeiten mit Solid Edge");
    EXPECT_TRUE(frame.TimerDBUpdate().on);
}

TEST_F(Frame, ARefusedChoiceKeepsTheDatabaseButNotTheRowsOfTheUnload)
{
    withDatabase();
    frame.toPage(Page::Start);
    start.upwards();
    EXPECT_EQ(start.selection().folder(), "W:\\");
    start.upwards();
    EXPECT_EQ(start.selection().folder(), "W:\\");
    choose("neu.mdb", Answer::No, REGISTER_PATH, "W:\\neu.mdb");
    EXPECT_EQ(frame.title(), "W:\\Daten\\werk.mdb    Quelvarn Version 2.0.0");
    EXPECT_TRUE(session.database.connection.open());
    start.offlineToolChosen(0);
    frame.unload();
    EXPECT_THAT(iniRows("Feld3 = 'Offline'"), ElementsAre("!QV_Ini|Plot|Offline|Talvik|~"));
}

TEST_F(Frame, AWrongFileStaysOnTheStartPage)
{
    withDatabase();
    frame.toPage(Page::Start);
    start.folderChosen("W:\\Anderes");
    choose("notiz.txt", Answer::Yes, REGISTER_PATH, "W:\\Anderes\\notiz.txt");
    world.boxes.answer();
    world.boxes.answer();
    start.open();
    EXPECT_EQ(frame.page(), Page::Start);
    EXPECT_FALSE(session.database.DatenbankOk || session.use.ForwardOn || start.cadEventsVisible());
    EXPECT_EQ(session.database.DatenbankPfad, "");
    EXPECT_FALSE(frame.TimerDBUpdate().on);
}

TEST_F(Frame, SettingsOfTheStartPageAreWrittenWhenItUnloads)
{
    addListener();
    session.rights.Sichtbar.fill(1);
    ASSERT_TRUE(frame.laden());
    frame.toPage(Page::Start);
    observer.events.clear();
    start.setActiveSE(true);
    EXPECT_EQ(start.LblActiveSE(), "Ereignis wird ausgewertet.");
    EXPECT_TRUE(frame.button(Tool::PlaceInDrawing).visible);
    start.setInfoPrio1(1, false);
    start.setInfoPrio2(5, false);
    start.offlineToolChosen(0);
    EXPECT_FALSE(session.Tree.Verwendung || session.Tree.Versendet);
    frame.toolChosen(Tool::Quit);
    EXPECT_TRUE(ended);
    EXPECT_FALSE(session.database.connection.open());
    EXPECT_THAT(observer.events, ElementsAre("Baum", "Baum", "Offline", "entladen"));
    EXPECT_THAT(iniRows("Feld2 = 'Treeview' AND Feld4 = '0'"),
                UnorderedElementsAre("mueller|Treeview|Verwendung|0|Verwendung anzeigen",
                                     "mueller|Treeview|Versendet|0|Versendet an"));
    EXPECT_THAT(iniRows("Feld2 = 'ActiveQuelvarn'"), ElementsAre("mueller|ActiveQuelvarn|1|~|~"));
    EXPECT_THAT(iniRows("Feld3 = 'Offline'"), ElementsAre("!QV_Ini|Plot|Offline|Druvik|~"));
}

TEST_F(Frame, ADriveThatCannotBeReadStaysUnchosen)
{
    withoutDatabase();
    world.boxes.expect("Start: Fehler beim Laufwerk", "Das Laufwerk ist nicht eingerichtet oder\n"
                                                      "es ist wahrscheinlich kein Datenträger im Laufwerk!");
    start.driveChosen("a:");
    EXPECT_EQ(start.selection().folder() + start.selection().drive(), "C:\\c:");
}

TEST_F(Frame, StartPageNamesTheInstalledSolidEdge)
{
    const struct
    {
        SolidEdgeInfo info;
        std::string version, documentPath;
        bool activeSE;
    } cases[] = {
        {{}, " Solid Edge Version?", "Pfadname zu Solid Edge???", true},
        {{"16.00", "C:\\Solid Edge\\Program"}, "Solid Edge 16.00", "C:\\Solid Edge\\Program", true},
        {{"16.00", "C:\\SmartViewer"}, "SmartView 16.00", "C:\\SmartViewer", false},
    };
    for (const auto& testCase : cases) {
        SessionState other;
        MainWindow window(other, operations, testCase.info);
        StartPage page(other, operations, window);
        window.showPage(Page::Start);
        EXPECT_EQ(page.LblSolidEdgeVersion(), testCase.version);
        EXPECT_EQ(page.LblSolidEdgePfad(), testCase.documentPath);
        EXPECT_EQ(page.cadEventsVisible(), testCase.activeSE);
    }
}

} // namespace quelvarn
