#include "frame/main_window.h"
#include "frame/start_page.h"
#include "session/register_fixture.h"

#include <gmock/gmock.h>

namespace quelvarn {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

namespace {

struct Beobachter : Rahmenteilnehmer
{
    void seiteGezeigt(Seite seite) override
    {
        ereignisse.push_back("Seite " + std::to_string(static_cast<int>(seite)));
    }
    void datenbankWechselt() override { ereignisse.emplace_back("wechselt"); }
    void datenbankGewechselt() override { ereignisse.emplace_back("gewechselt"); }
    void baumschalterGeaendert() override { ereignisse.emplace_back("Baum"); }
    void offlineToolGeaendert() override { ereignisse.emplace_back("Offline"); }
    void entladen() override { ereignisse.emplace_back("entladen"); }
    std::vector<std::string> ereignisse;
};

} // namespace

class Frame : public RegisterTest
{
protected:
    Frame()
    {
        rahmen.meldeAn(beobachter);
        rahmen.beendet = [this] { beendet = true; };
    }
    void ohneDatenbank()
    {
        session.database.DatenbankPfad.clear();
        ASSERT_TRUE(rahmen.laden());
    }
    void mitDatenbank()
    {
        meldeAn();
        ASSERT_TRUE(rahmen.laden());
    }
    // What is visible of the tool bar, by first letters, and the first button's tip.
    std::string werkzeuge() const
    {
        std::string text;
        for (int i = 0; i < ANZAHL_WERKZEUGE; ++i)
            if (rahmen.knopf(static_cast<Werkzeug>(i)).sichtbar)
                text += rahmen.knopf(static_cast<Werkzeug>(i)).beschriftung.substr(0, 2);
        return text + "/" + std::string(rahmen.knopf(Werkzeug::Bearbeiten).tooltip);
    }
    void waehle(const std::string& name, Antwort antwort, const std::string& von, const std::string& nach)
    {
        world.meldungen.erwarte("Wechsel der Datenbank",
                                "Nach Drücken der Schaltfläche <Öffnen> wechselt die Datenbank\n\nvon:    " + von +
                                    "\nnach:  " + nach + "\n\nMöchten Sie fortfahren?",
                                antwort);
        start.dateiGewaehlt(name);
    }

    MainWindow rahmen{session, operations, {}};
    StartPage start{session, operations, rahmen};
    Beobachter beobachter;
    bool beendet = false;
};

TEST_F(Frame, WithoutADatabaseOnlyTheStartPageIsReached)
{
    ohneDatenbank();
    EXPECT_EQ(rahmen.titel(), "    Quelvarn Version 2.0.0");
    EXPECT_EQ(world.programme.eigener, rahmen.titel());
    EXPECT_EQ(rahmen.seite(), Seite::Start);
    EXPECT_EQ(start.LabelDB(), "");
    EXPECT_EQ(start.auswahl().ordner(), "C:\\");
    EXPECT_THAT(rahmen.statuspanel(),
                ElementsAre("Änderung DB (0,0 Sek-Takt):",
                            "Keine laufende Überprüfung der Datenbank (siehe Ini-Tabelle 'Timeinterval')."));
    EXPECT_FALSE(rahmen.TimerDBUpdate().an);

    for (const Seite seite : {Seite::Filter, Seite::Dokumente}) {
        world.meldungen.erwarte("Auswahl Datenbank", "Es ist keine Datenbank ausgewählt!");
        rahmen.zuSeite(seite);
        EXPECT_EQ(rahmen.seite(), Seite::Start);
    }
    world.meldungen.erwarte("Start: Name der Datenbank", "Es wurde keine Datenbank ausgewählt");
    start.oeffnen();
    const std::string frage = "Es wurde keine Datenbank ausgewählt!\n\nMöchten Sie Quelvarn beenden?\n";
    world.meldungen.erwarte("Auswahl Datenbank", frage, Antwort::Nein);
    start.verlassen();
    EXPECT_FALSE(beendet);
    world.meldungen.erwarte("Auswahl Datenbank", frage, Antwort::Ja);
    start.verlassen();
    EXPECT_TRUE(beendet);
}

TEST_F(Frame, WithADatabaseTheDocumentPageComesFirst)
{
    mitDatenbank();
    EXPECT_EQ(rahmen.titel(), "W:\\Daten\\werk.mdb    Quelvarn Version 2.0.0");
    EXPECT_THAT(beobachter.ereignisse, ElementsAre("Seite 3"));
    EXPECT_THAT(rahmen.statuspanel(), ElementsAre("Änderung DB (30,0 Sek-Takt):", "Bauteil", "", "Blechteil", "",
                                                  "Baugruppe", "", "Zeichnung", "", "Schweißteil", ""));
    EXPECT_EQ(rahmen.TimerDBUpdate().intervall, 30000);
    EXPECT_TRUE(rahmen.TimerCheckInOut().an && rahmen.TimerWorkflow().an);
    EXPECT_EQ(benachrichtigungstext(session), "Innerhalb 30,0 Sek. benachrichtigen Ja/Nein.");

    rahmen.zuSeite(Seite::Start);
    EXPECT_EQ(start.LabelDB() + start.dateinamePanel() + "+" + start.pfadnamePanel(),
              "  Datenbank:  werk.mdb  Datenbank:  werk.mdb+W:\\Daten");
    EXPECT_THAT(start.auswahl().dateien(), ElementsAre("werk.mdb"));
    start.verlassen();
    EXPECT_EQ(rahmen.seite(), Seite::Dokumente);
}

TEST_F(Frame, ToolBarFollowsRightsEventsAndForwarding)
{
    const struct
    {
        std::array<int, ANZAHL_STATUS> sichtbar;
        bool aktiv, forward;
        std::string viewer, werkzeuge;
    } faelle[] = {
        {{1, 1, 1, 0, 0, 0}, true, true, "", "BeEiPlSmExWeNaBe/Bearbeiten mit SE, Ereignisse sind aktiv!"},
        {{1, 1, 1, 0, 0, 0}, false, false, "", "BeSmBe/Bearbeiten mit SE"},
        {{1, 1, 0, 1, 1, 1}, true, true, "", "SmExWeNaBe/Bearbeiten mit Solid Edge"},
        {{1, 1, 1, 1, 1, 1}, true, true, "C:\\SmartView", "SmExWeNaBe/Bearbeiten mit Solid Edge"},
    };
    for (const auto& fall : faelle) {
        session.rights.Sichtbar = fall.sichtbar;
        session.pages.ActiveQuelvarn = fall.aktiv;
        session.use.ForwardOn = fall.forward;
        MainWindow fenster(session, operations, {"16", fall.viewer});
        fenster.stelleWerkzeugeEin();
        std::string text;
        for (int i = 0; i < ANZAHL_WERKZEUGE; ++i)
            if (fenster.knopf(static_cast<Werkzeug>(i)).sichtbar)
                text += fenster.knopf(static_cast<Werkzeug>(i)).beschriftung.substr(0, 2);
        EXPECT_EQ(text + "/" + std::string(fenster.knopf(Werkzeug::Bearbeiten).tooltip), fall.werkzeuge);
        EXPECT_EQ(session.pages.ActiveQuelvarn, fall.werkzeuge.starts_with("BeEi"));
    }
}

TEST_F(Frame, ForwardingThatIsOffAnswersWithABox)
{
    const std::string rest = "\nIni-Tabelle der Datenbank auf '0' gesetzt ist oder fehlt!\nEintrag muss lauten:\n"
                             "Spalte 'Feld1' = '!QV_Ini'\nSpalte 'Feld2' = 'OnOff'\nSpalte 'Feld3' = 'Forward'\n"
                             "Spalte 'Feld4' = '1'\nNach Änderung muss Quelvarn neu gestartet werden.";
    int aktionen = 0;
    rahmen.setzeAktion(Werkzeug::Weiterleiten, [&] { ++aktionen; });
    world.meldungen.erwarte("Weiterleiten der Dokumente",
                            "Kein Weiterleiten der Dokumente, da 'Forward' in der" + rest);
    rahmen.werkzeugGewaehlt(Werkzeug::Weiterleiten);
    world.meldungen.erwarte("Erfassen der Nachrichten",
                            "Die Nachrichten werden nicht registriert, da 'Forward' in der" + rest);
    rahmen.werkzeugGewaehlt(Werkzeug::Nachrichten);
    EXPECT_EQ(aktionen, 0);

    session.use.ForwardOn = true;
    rahmen.werkzeugGewaehlt(Werkzeug::Weiterleiten);
    EXPECT_EQ(aktionen, 1);
    rahmen.setzeAktion(Werkzeug::SmartViewer, [] { throw Laufzeitfehler(5, "x", "y"); });
    world.meldungen.erwarte("Toolbar MDI-Form", "Fehler bei Toolbar MDI-Form!");
    world.meldungen.antworte();
    rahmen.werkzeugGewaehlt(Werkzeug::SmartViewer);
}

TEST_F(Frame, ASecondCopyThatIsNotWantedEndsAtOnce)
{
    world.programme.andere = {"    Quelvarn Version 2.0.0"};
    session.database.DatenbankPfad.clear();
    world.meldungen.antworte(Antwort::Nein);
    EXPECT_FALSE(rahmen.laden());
    EXPECT_TRUE(beendet);
}

TEST_F(Frame, ChoosingAndOpeningChangesTheDatabase)
{
    ohneDatenbank();
    beobachter.ereignisse.clear();
    start.laufwerkGewaehlt("w: [\\\\server\\konstruktion]");
    EXPECT_THAT(start.auswahl().unterordner(), ElementsAre("Anderes", "Daten", "Plot"));
    start.ordnerGewaehlt("W:\\Daten");
    world.programme.andere = {"Harvel Version 2"};
    world.meldungen.antworte();
    start.dateiGewaehlt("werk.mdb");
    EXPECT_EQ(start.LabelDB(), "");

    world.programme.andere.clear();
    waehle("werk.mdb", Antwort::Ja, "", REGISTERPFAD);
    EXPECT_EQ(start.LabelDB(), "  Datenbank:  werk.mdb");
    EXPECT_EQ(start.dateinamePanel() + "+" + start.pfadnamePanel(), "werk.mdb+W:\\Daten");
    EXPECT_EQ(rahmen.titel(), "W:\\Daten\\werk.mdb    Quelvarn Version 2.0.0");
    EXPECT_FALSE(session.database.Verbindung.offen());

    world.meldungen.antworte(); // The welcome.
    start.oeffnen();
    EXPECT_TRUE(session.database.DatenbankOk);
    EXPECT_THAT(beobachter.ereignisse, ElementsAre("wechselt", "gewechselt", "Seite 3"));
    EXPECT_EQ(world.dateien.lese("C:\\Quelvarnis.ini"), "W:\\Daten\\werk.mdb\r\n");
    EXPECT_FALSE(start.activeSEBereit()); // A new user does not see statuses 0 to 2.
    EXPECT_EQ(werkzeuge(), "SmExWeNaBe/Bearbeiten mit Solid Edge");
    EXPECT_TRUE(rahmen.TimerDBUpdate().an);
}

TEST_F(Frame, ARefusedChoiceKeepsTheDatabaseButNotTheRowsOfTheUnload)
{
    mitDatenbank();
    rahmen.zuSeite(Seite::Start);
    start.nachOben();
    EXPECT_EQ(start.auswahl().ordner(), "W:\\");
    start.nachOben();
    EXPECT_EQ(start.auswahl().ordner(), "W:\\");
    waehle("neu.mdb", Antwort::Nein, REGISTERPFAD, "W:\\neu.mdb");
    EXPECT_EQ(rahmen.titel(), "W:\\Daten\\werk.mdb    Quelvarn Version 2.0.0");
    EXPECT_TRUE(session.database.Verbindung.offen());
    start.offlineToolGewaehlt(0);
    rahmen.entladen();
    EXPECT_THAT(iniZeilen("Feld3 = 'Offline'"), ElementsAre("!QV_Ini|Plot|Offline|Talvik|~"));
}

TEST_F(Frame, AWrongFileStaysOnTheStartPage)
{
    mitDatenbank();
    rahmen.zuSeite(Seite::Start);
    start.ordnerGewaehlt("W:\\Anderes");
    waehle("notiz.txt", Antwort::Ja, REGISTERPFAD, "W:\\Anderes\\notiz.txt");
    world.meldungen.antworte();
    world.meldungen.antworte();
    start.oeffnen();
    EXPECT_EQ(rahmen.seite(), Seite::Start);
    EXPECT_FALSE(session.database.DatenbankOk || session.use.ForwardOn || start.activeSESichtbar());
    EXPECT_EQ(session.database.DatenbankPfad, "");
    EXPECT_FALSE(rahmen.TimerDBUpdate().an);
}

TEST_F(Frame, SettingsOfTheStartPageAreWrittenWhenItUnloads)
{
    meldeAn();
    session.rights.Sichtbar.fill(1);
    ASSERT_TRUE(rahmen.laden());
    rahmen.zuSeite(Seite::Start);
    beobachter.ereignisse.clear();
    start.setzeActiveSE(true);
    EXPECT_EQ(start.LblActiveSE(), "Ereignis wird ausgewertet.");
    EXPECT_TRUE(rahmen.knopf(Werkzeug::PlazierenZchn).sichtbar);
    start.setzeInfoPrio1(1, false);
    start.setzeInfoPrio2(5, false);
    start.offlineToolGewaehlt(0);
    EXPECT_FALSE(session.Tree.Verwendung || session.Tree.Versendet);
    rahmen.werkzeugGewaehlt(Werkzeug::Beenden);
    EXPECT_TRUE(beendet);
    EXPECT_FALSE(session.database.Verbindung.offen());
    EXPECT_THAT(beobachter.ereignisse, ElementsAre("Baum", "Baum", "Offline", "entladen"));
    EXPECT_THAT(iniZeilen("Feld2 = 'Treeview' AND Feld4 = '0'"),
                UnorderedElementsAre("mueller|Treeview|Verwendung|0|Verwendung anzeigen",
                                     "mueller|Treeview|Versendet|0|Versendet an"));
    EXPECT_THAT(iniZeilen("Feld2 = 'ActiveQuelvarn'"), ElementsAre("mueller|ActiveQuelvarn|1|~|~"));
    EXPECT_THAT(iniZeilen("Feld3 = 'Offline'"), ElementsAre("!QV_Ini|Plot|Offline|Druvik|~"));
}

TEST_F(Frame, ADriveThatCannotBeReadStaysUnchosen)
{
    ohneDatenbank();
    world.meldungen.erwarte("Start: Fehler beim Laufwerk", "Das Laufwerk ist nicht eingerichtet oder\n"
                                                           "es ist wahrscheinlich kein Datenträger im Laufwerk!");
    start.laufwerkGewaehlt("a:");
    EXPECT_EQ(start.auswahl().ordner() + start.auswahl().laufwerk(), "C:\\c:");
}

TEST_F(Frame, StartPageNamesTheInstalledSolidEdge)
{
    const struct
    {
        SolidEdgeInfo info;
        std::string version, pfad;
        bool activeSE;
    } faelle[] = {
        {{}, " Solid Edge Version?", "Pfadname zu Solid Edge???", true},
        {{"16.00", "C:\\Solid Edge\\Program"}, "Solid Edge 16.00", "C:\\Solid Edge\\Program", true},
        {{"16.00", "C:\\SmartViewer"}, "SmartView 16.00", "C:\\SmartViewer", false},
    };
    for (const auto& fall : faelle) {
        SessionState andere;
        MainWindow fenster(andere, operations, fall.info);
        StartPage seite(andere, operations, fenster);
        fenster.zeigeSeite(Seite::Start);
        EXPECT_EQ(seite.LblSolidEdgeVersion(), fall.version);
        EXPECT_EQ(seite.LblSolidEdgePfad(), fall.pfad);
        EXPECT_EQ(seite.activeSESichtbar(), fall.activeSE);
    }
}

} // namespace quelvarn
