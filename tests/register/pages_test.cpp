#include "database/sql/parser.h"
#include "register_fixture.h"

#include <tuple>

namespace quelvarn {
namespace {

using PagesTest = RegisterTest;

TEST_F(PagesTest, StatusHeadNamesWhoWorksOnIt)
{
    struct Fall
    {
        std::int64_t status;
        const char* bearbeiter;
        const char* text;
        unsigned farbe;
        bool breit;
    };
    const Fall faelle[] = {
        {0, "Meier", "0 Status ", 0x000000, false},   {1, "Meier", "<Meier> 'In Arbeit'", 0xFF0000, true},
        {1, "MUELLER", "1 Status ", 0xFF0000, false}, {2, "", "2 Status ", 0xFF00FF, false},
        {3, "", "3 Status ", 0x0000FF, false},        {4, "", "4 Status ", 0x00FFFF, false},
        {5, "", "5 Status ", 0x008080, false},        {7, "", "7 Status ", 0x008080, false}, // Keeps the colour.
    };
    int nummer = 0;
    for (const Fall& fall : faelle)
        zeile("PartTabelle",
              {{"DokuBez", "S-" + std::to_string(nummer++)}, {"Status", fall.status}, {"Bearbeiter", fall.bearbeiter}});
    tabs_.chooseTab(0);
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.text);
        EXPECT_EQ(panels_.status().text, fall.text);
        EXPECT_EQ(panels_.status().farbe, fall.farbe);
        EXPECT_EQ(panels_.status().breit, fall.breit);
        tabs_.nextRow();
    }
}

TEST_F(PagesTest, GeneralPageShowsTheRow)
{
    zeile("PartTabelle", {{"DokuBez", "P-1"},
                          {"filename", "W:\\Teile\\P-1.par"},
                          {"Status", 4},
                          {"Erstellt", Zeitpunkt::aus({2004, 2, 9, 7, 5, 0})}});
    tabs_.chooseTab(0);
    const AllgemeineSeite& seite = info_.general();
    EXPECT_EQ(info_.page(), InfoSeite::Allgemein);
    EXPECT_EQ(seite.Status + seite.StatusName, "4(Festgeschr.)");
    EXPECT_EQ(seite.Erstellt, "09.02.04");
    EXPECT_EQ(seite.Geaendert, ""); // Null: no date is better than a wrong one.
    EXPECT_EQ(panels_.folder(), "W:\\Teile");
    EXPECT_TRUE(seite.nichtVorhanden);
    welt_.dateien.legeAn("W:\\Teile\\P-1.par");
    tabs_.chooseRow(0);
    EXPECT_FALSE(seite.nichtVorhanden);
}

TEST_F(PagesTest, GeneralPageTellsWhereTheDocumentIsUsed)
{
    const std::tuple<int, std::string, bool, std::string> faelle[] = {
        {0, "verbunden", true, "Eingebaut:Ja Zeichnung:Ja"},
        {0, "frei", true, "Eingebaut:Nein Zeichnung:Nein"},
        {0, "verbunden", false, " "},
        {3, "verbunden", true, "Format:A2 Modell:Ja"},
        {3, "frei", true, " Modell:Nein"},
        {3, "verbunden", false, " "},
        {7, "verbunden", true, "Eingebaut:Ja Zeichnung:Ja"},
    };
    for (const int tab : {0, 3, 7}) {
        dokument(tab, "frei");
        zeile(DOKUTYPEN[tab].tabelle, {{"DokuBez", "verbunden"}, {"RevBez", "0"}, {"filename", "W:\\v"}});
    }
    engine_->fuehreAus(sql::parseAnweisung("UPDATE DraftTabelle SET F_05_leer = 'A2' WHERE DokuBez = 'verbunden'"));
    zeile("ZusBauPart", {{"Part", "W:\\v"}});
    zeile("VerbindungDraftPart", {{"DokuBezDraft", "verbunden"}, {"RevBezDraft", "0"}, {"PfadAssembPart", "W:\\v"}});
    for (const auto& [tab, name, verwendung, text] : faelle) {
        session_.Tree.Verwendung = verwendung;
        zeigeDokument(tab, name);
        const AllgemeineSeite& seite = info_.general();
        EXPECT_EQ(seite.kopf8 + seite.wert9 + " " + seite.kopf39 + seite.wert40, text) << tab << name;
    }
}

TEST_F(PagesTest, OnlyOnePageOfATableStaysFromRowToRow)
{
    const std::pair<std::string_view, InfoSeite> klicks[] = {
        {knoten::DATEI, InfoSeite::Datei},         {knoten::HAUPTMERKMALE, InfoSeite::Hauptmerkmale},
        {knoten::BENUTZDEF, InfoSeite::BenutzDef}, {knoten::STICHKOMM, InfoSeite::StichKomm},
        {knoten::ZUSDOKU, InfoSeite::ZusDoku},     {knoten::REVISION, InfoSeite::Revisionen},
    };
    for (const int tab : {0, 1}) {
        const DokuTyp& typ = DOKUTYPEN[tab];
        for (const char* revision : {"a", "b"}) {
            zeile(typ.tabelle, {{"DokuBez", "M"},
                                {"RevBez", revision},
                                {"filename", "W:\\m"},
                                {"Hauptmerkmal_A", "x"},
                                {"Stichwoerter", revision}});
            zeile(typ.tabelleBenutzDef, {{"DokuBez", "M"}, {"RevBez", revision}, {"Name", "n"}});
        }
        zeile("VerbindungPartZusDoku", {{"Dokufilename", "W:\\m"}});
        tabs_.chooseTab(tab);
        const InfoSeite bleibend = tab == 0 ? InfoSeite::StichKomm : InfoSeite::Datei;
        for (const auto& [text, seite] : klicks) {
            SCOPED_TRACE(text);
            info_.chooseNode(text);
            EXPECT_EQ(info_.page(), seite);
            EXPECT_EQ(tree_.tree().gewaehlt, text);
            tabs_.nextRow();
            // A click on a top node leaves what was kept before; none was by then.
            EXPECT_EQ(info_.page(), seite == bleibend ? seite : InfoSeite::Allgemein);
            EXPECT_EQ(info_.keywords().TextKeywords, session_.AktDoku.RevBez);
        }
        info_.chooseNode(bleibend == InfoSeite::Datei ? knoten::DATEI : knoten::STICHKOMM);
        info_.chooseNode(knoten::EIGENSCHAFTEN);
        tabs_.nextRow();
        EXPECT_EQ(info_.page(), InfoSeite::Allgemein);
        info_.chooseNode(bleibend == InfoSeite::Datei ? knoten::DATEI : knoten::STICHKOMM);
        tabs_.chooseTab(tab); // forgets it
        EXPECT_EQ(info_.page(), InfoSeite::Allgemein);
    }
}

TEST_F(PagesTest, TheViewerFollowsTheRowsUntilItCannotShowOne)
{
    dokument(0, "A");
    dokument(0, "B");
    dokument(0, "C");
    tabs_.chooseTab(0);
    viewers_.kaputt = {pfad("C_0.par")};
    info_.chooseNode(knoten::SMARTVIEWER);
    EXPECT_EQ(info_.page(), InfoSeite::Viewer);
    tabs_.nextRow();
    EXPECT_EQ(info_.page(), InfoSeite::Viewer);
    EXPECT_EQ(viewers_.steht(Ansicht::Eigenschaften), pfad("B_0.par"));
    welt_.meldungen.erwarte("Anzeigen im Viewer", "Die Datei:\n" + pfad("C_0.par") +
                                                      "\nkonnte nicht geöffnet werden!\n\nMögliche Ursache:\n"
                                                      "- Falscher Pfad- und/oder Dateiname.\n- Kein Zugriffsrecht.");
    tabs_.nextRow();
    EXPECT_EQ(info_.page(), InfoSeite::Allgemein);
    EXPECT_EQ(info_.general().DokuBez, "C");
    tabs_.chooseRow(0);
    EXPECT_EQ(info_.page(), InfoSeite::Allgemein);
}

TEST_F(PagesTest, FilePageShowsAndSetsAttributes)
{
    dokument(0, "A");
    dokument(0, "B");
    welt_.dateien.legeAn(pfad("A_0.par"), std::string(12345, 'x'));
    tabs_.chooseTab(0);
    info_.chooseNode(knoten::DATEI);
    const DateiSeite& datei = info_.file();
    EXPECT_TRUE(datei.vorhanden);
    EXPECT_EQ(datei.Name, "A_0.par");
    EXPECT_EQ(datei.Ordner, "W:\\Teile");
    EXPECT_EQ(datei.Groesse, "12.345 Bytes");
    EXPECT_EQ(datei.Erstellt, "01.03.2004 08:30:00");

    info_.setReadOnly(true);
    info_.setArchive(true);
    EXPECT_TRUE(datei.schreibgeschuetzt && datei.archiv);
    EXPECT_TRUE(welt_.dateien.attribute(pfad("A_0.par"))->schreibgeschuetzt);
    info_.setReadOnly(false);
    EXPECT_FALSE(datei.schreibgeschuetzt);

    tabs_.nextRow();
    info_.chooseNode(knoten::DATEI);
    EXPECT_FALSE(datei.vorhanden);
    EXPECT_EQ(datei.Name + datei.Groesse + datei.Erstellt, "");
    info_.setReadOnly(true); // No file: nothing happens.
}

TEST_F(PagesTest, AnAttributeThatCannotBeWrittenIsTold)
{
    struct Gesperrt : FakeDateien
    {
        using FakeDateien::FakeDateien;
        void setzeArchiv(std::string_view, bool) override { throw Laufzeitfehler(70, "Datei", "Zugriff verweigert"); }
    } dateien{welt_.uhr};
    dokument(0, "A");
    dateien.legeAn(pfad("A_0.par"));
    Ports ports = welt_.portsMit(dateien);
    Program program(session_, ports, viewers_);
    program.tabs.chooseTab(0);
    welt_.meldungen.erwarte("Dateieigenschaften", "Fehler beim Lesen der Dateieigenschaften!\nMögliche Ursache:\n"
                                                  "Datei ist nicht vorhanden.");
    welt_.meldungen.antworte();
    program.info.setArchive(true);
    EXPECT_FALSE(program.info.file().archiv); // The box goes back to what the file says.
}

TEST_F(PagesTest, PdfOpensInItsApplication)
{
    dokument(3, "Z");
    welt_.dateien.legeAn(pfad("Z_0.pdf"));
    tabs_.chooseTab(3);
    info_.chooseNode(knoten::PDF);
    EXPECT_EQ(welt_.standardanwendung.geoeffnet, std::vector<std::string>{pfad("Z_0.pdf")});
    welt_.dateien.loesche(pfad("Z_0.pdf"));
    welt_.meldungen.antworte();
    info_.chooseNode(knoten::PDF);
    EXPECT_EQ(welt_.meldungen.letzte().titel, "Im Verzeichnis nicht vorhanden");
}

TEST_F(PagesTest, ClosingRemembersTheTabOfFileTypesOnly)
{
    const auto starttabelle = [&] {
        Recordset zeilen;
        zeilen.Open("SELECT Feld3 FROM Ini WHERE Feld1 = 'Mueller' AND Feld2 = 'Starttabelle'",
                    session_.database.Verbindung);
        return zeilen.Text("Feld3");
    };
    zeile("Ini", {{"Feld1", "Mueller"}, {"Feld2", "Starttabelle"}, {"Feld3", "Bauteile"}});
    for (const auto& [tab, erwartet] : {std::pair{2, "Baugruppen"}, std::pair{6, "Baugruppen"}, {4, "Schweißteile"}}) {
        tabs_.StartTabelleZeigen();
        tabs_.chooseTab(tab);
        page_.entladen();
        EXPECT_EQ(starttabelle(), erwartet);
    }
    page_.entladen(); // Closed already: nothing is written.
    EXPECT_EQ(tables_[4].state(), TableState::NotOpen);
}

} // namespace
} // namespace quelvarn
