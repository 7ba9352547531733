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
    page_.tabGewaehlt(0);
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.text);
        EXPECT_EQ(page_.statuskopf().text, fall.text);
        EXPECT_EQ(page_.statuskopf().farbe, fall.farbe);
        EXPECT_EQ(page_.statuskopf().breit, fall.breit);
        page_.zeileVor();
    }
}

TEST_F(PagesTest, GeneralPageShowsTheRow)
{
    zeile("PartTabelle", {{"DokuBez", "P-1"},
                          {"filename", "W:\\Teile\\P-1.par"},
                          {"Status", 4},
                          {"Erstellt", Zeitpunkt::aus({2004, 2, 9, 7, 5, 0})}});
    page_.tabGewaehlt(0);
    const AllgemeineSeite& seite = page_.allgemein();
    EXPECT_EQ(page_.infoSeite(), InfoSeite::Allgemein);
    EXPECT_EQ(seite.Status + seite.StatusName, "4(Festgeschr.)");
    EXPECT_EQ(seite.Erstellt, "09.02.04");
    EXPECT_EQ(seite.Geaendert, ""); // Null: no date is better than a wrong one.
    EXPECT_EQ(page_.ordnerPanel(), "W:\\Teile");
    EXPECT_TRUE(seite.nichtVorhanden);
    welt_.dateien.legeAn("W:\\Teile\\P-1.par");
    page_.zeileGewaehlt(0);
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
        const AllgemeineSeite& seite = page_.allgemein();
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
        page_.tabGewaehlt(tab);
        const InfoSeite bleibend = tab == 0 ? InfoSeite::StichKomm : InfoSeite::Datei;
        for (const auto& [text, seite] : klicks) {
            SCOPED_TRACE(text);
            page_.knotenGewaehlt(text);
            EXPECT_EQ(page_.infoSeite(), seite);
            EXPECT_EQ(page_.tree().gewaehlt, text);
            page_.zeileVor();
            // A click on a top node leaves what was kept before; none was by then.
            EXPECT_EQ(page_.infoSeite(), seite == bleibend ? seite : InfoSeite::Allgemein);
            EXPECT_EQ(page_.stichKomm().TextKeywords, session_.AktDoku.RevBez);
        }
        page_.knotenGewaehlt(bleibend == InfoSeite::Datei ? knoten::DATEI : knoten::STICHKOMM);
        page_.knotenGewaehlt(knoten::EIGENSCHAFTEN);
        page_.zeileVor();
        EXPECT_EQ(page_.infoSeite(), InfoSeite::Allgemein);
        page_.knotenGewaehlt(bleibend == InfoSeite::Datei ? knoten::DATEI : knoten::STICHKOMM);
        page_.tabGewaehlt(tab); // forgets it
        EXPECT_EQ(page_.infoSeite(), InfoSeite::Allgemein);
    }
}

TEST_F(PagesTest, TheViewerFollowsTheRowsUntilItCannotShowOne)
{
    dokument(0, "A");
    dokument(0, "B");
    dokument(0, "C");
    page_.tabGewaehlt(0);
    bildschirm_.viewer.kaputt = {pfad("C_0.par")};
    page_.knotenGewaehlt(knoten::SMARTVIEWER);
    EXPECT_EQ(page_.infoSeite(), InfoSeite::Viewer);
    page_.zeileVor();
    EXPECT_EQ(page_.infoSeite(), InfoSeite::Viewer);
    EXPECT_EQ(bildschirm_.viewer.steht(Ansicht::Eigenschaften), pfad("B_0.par"));
    welt_.meldungen.erwarte("Anzeigen im Viewer", "Die Datei:\n" + pfad("C_0.par") +
                                                      "\nkonnte nicht geöffnet werden!\n\nMögliche Ursache:\n"
                                                      "- Falscher Pfad- und/oder Dateiname.\n- Kein Zugriffsrecht.");
    page_.zeileVor();
    EXPECT_EQ(page_.infoSeite(), InfoSeite::Allgemein);
    EXPECT_EQ(page_.allgemein().DokuBez, "C");
    page_.zeileGewaehlt(0);
    EXPECT_EQ(page_.infoSeite(), InfoSeite::Allgemein);
}

TEST_F(PagesTest, FilePageShowsAndSetsAttributes)
{
    dokument(0, "A");
    dokument(0, "B");
    welt_.dateien.legeAn(pfad("A_0.par"), std::string(12345, 'x'));
    page_.tabGewaehlt(0);
    page_.knotenGewaehlt(knoten::DATEI);
    const DateiSeite& datei = page_.datei();
    EXPECT_TRUE(datei.vorhanden);
    EXPECT_EQ(datei.Name, "A_0.par");
    EXPECT_EQ(datei.Ordner, "W:\\Teile");
    EXPECT_EQ(datei.Groesse, "12.345 Bytes");
    EXPECT_EQ(datei.Erstellt, "01.03.2004 08:30:00");

    page_.setzeSchreibschutz(true);
    page_.setzeArchiv(true);
    EXPECT_TRUE(datei.schreibgeschuetzt && datei.archiv);
    EXPECT_TRUE(welt_.dateien.attribute(pfad("A_0.par"))->schreibgeschuetzt);
    page_.setzeSchreibschutz(false);
    EXPECT_FALSE(datei.schreibgeschuetzt);

    page_.zeileVor();
    page_.knotenGewaehlt(knoten::DATEI);
    EXPECT_FALSE(datei.vorhanden);
    EXPECT_EQ(datei.Name + datei.Groesse + datei.Erstellt, "");
    page_.setzeSchreibschutz(true); // No file: nothing happens.
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
    Operations operations(ports);
    DocumentTables tables(session_, operations);
    DocumentPage page(session_, operations, tables, filter_, bildschirm_.gezeigt);
    page.tabGewaehlt(0);
    welt_.meldungen.erwarte("Dateieigenschaften", "Fehler beim Lesen der Dateieigenschaften!\nMögliche Ursache:\n"
                                                  "Datei ist nicht vorhanden.");
    welt_.meldungen.antworte();
    page.setzeArchiv(true);
    EXPECT_FALSE(page.datei().archiv); // The box goes back to what the file says.
}

TEST_F(PagesTest, PdfOpensInItsApplication)
{
    dokument(3, "Z");
    welt_.dateien.legeAn(pfad("Z_0.pdf"));
    page_.tabGewaehlt(3);
    page_.knotenGewaehlt(knoten::PDF);
    EXPECT_EQ(welt_.standardanwendung.geoeffnet, std::vector<std::string>{pfad("Z_0.pdf")});
    welt_.dateien.loesche(pfad("Z_0.pdf"));
    welt_.meldungen.antworte();
    page_.knotenGewaehlt(knoten::PDF);
    EXPECT_EQ(welt_.meldungen.letzte().titel, "Im Verzeichnis nicht vorhanden");
}

TEST_F(PagesTest, ClosingRemembersTheTabOfFileTypesOnly)
{
    const auto starttabelle = [&] {
        Recordset zeilen;
        zeilen.Open("SELECT Feld3 FROM Ini WHERE Feld1 = 'Mueller' AND Feld2 = 'Starttabelle'", session_.Verbindung);
        return zeilen.Text("Feld3");
    };
    zeile("Ini", {{"Feld1", "Mueller"}, {"Feld2", "Starttabelle"}, {"Feld3", "Bauteile"}});
    for (const auto& [tab, erwartet] : {std::pair{2, "Baugruppen"}, std::pair{6, "Baugruppen"}, {4, "Schweißteile"}}) {
        page_.StartTabelleZeigen();
        page_.tabGewaehlt(tab);
        page_.schliessen();
        EXPECT_EQ(starttabelle(), erwartet);
    }
    page_.schliessen(); // Closed already: nothing is written.
    EXPECT_EQ(tables_[4].state(), TableState::NotOpen);
}

} // namespace
} // namespace quelvarn
