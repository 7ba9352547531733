#include "register_fixture.h"

#include <functional>

namespace quelvarn {
namespace {

using TableTest = RegisterTest;

TEST_F(TableTest, OpensTheStartTableOncePerDatabase)
{
    dokument(3, "Z-1");
    session_.pages.Starttabelle = "Zeichnungen";
    tabs_.StartTabelleZeigen();
    EXPECT_EQ(tables_.tab(), 3);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Zeichnungen, Anzahl: 1");
    EXPECT_EQ(info_.heading(), "  Eigenschaften Zeichnung");
    for (const int tab : {0, 1, 2, 4, 5, 6, 7})
        EXPECT_EQ(tables_[tab].state(), TableState::NotOpen);

    tabs_.chooseTab(0);
    tabs_.StartTabelleZeigen();
    EXPECT_EQ(tables_.tab(), 0);

    page_.datenbankWechselt();
    EXPECT_EQ(info_.page(), InfoSeite::Keine);
    EXPECT_EQ(session_.AktDoku, AktuellesDokument{});
    session_.pages.Starttabelle = "Normteile"; // No table to start with: the tab stays, nothing is opened.
    tabs_.StartTabelleZeigen();
    EXPECT_EQ(tables_.tab(), 0);
    EXPECT_EQ(tables_[0].state(), TableState::NotOpen);
    EXPECT_EQ(heading_.countText(), "");
}

TEST_F(TableTest, StatusScopeLimitsFileTypesButNotSpecialTables)
{
    for (const int tab : {0, 5}) {
        for (const int status : {1, 3, 4, 5})
            dokument(tab, std::to_string(status), "0", status);
    }
    siehtStati("345");
    tabs_.chooseTab(0);
    EXPECT_EQ(liste(), "3/0 4/0 5/0 ");
    session_.labels.SondertabelleName[0] = "Normteile";
    tabs_.chooseTab(5);
    EXPECT_EQ(liste(), "1/0 3/0 4/0 5/0 ");
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Normteile, Anzahl: 4");
    EXPECT_EQ(info_.heading(), "  Eigenschaften Normteile");
}

TEST_F(TableTest, ATableWithOnlyHiddenDocumentsIsEmpty)
{
    dokument(0, "A", "0", 1);
    dokument(1, "B");
    siehtStati("3");
    tabs_.chooseTab(1);
    tabs_.chooseTab(0);
    EXPECT_EQ(tables_[0].state(), TableState::Empty);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 0");
    EXPECT_EQ(baum(), "");
    EXPECT_EQ(info_.page(), InfoSeite::Keine);
    EXPECT_EQ(session_.AktDoku, AktuellesDokument{});
    EXPECT_EQ(panels_.fileName() + panels_.folder() + panels_.status().text, "");
    tabs_.rebuild();
    tabs_.nextRow();
    tabs_.back();
    EXPECT_EQ(tables_[0].state(), TableState::Empty);
}

TEST_F(TableTest, TypeCodeOfAktDokuDependsOnWhoLoadedTheRow)
{
    const int nachZeile[] = {1, 4, 3, 2, 1, 1, 1, 1};
    const int nachTab[] = {1, 4, 3, 2, 2, 1, 1, 1};
    for (const DokuTyp& typ : DOKUTYPEN) {
        SCOPED_TRACE(typ.tabelle);
        dokument(typ.tab, "X");
        tabs_.chooseTab(typ.tab);
        EXPECT_EQ(session_.AktDoku.Typ, nachTab[typ.tab]);
        tabs_.chooseRow(0);
        EXPECT_EQ(session_.AktDoku.Typ, nachZeile[typ.tab]);
        EXPECT_EQ(tables_[typ.tab].record().DokuArt, typ.tab == 4 ? 6 : nachZeile[typ.tab]);
    }
}

TEST_F(TableTest, ATabSwitchActsOnTheState)
{
    struct Case
    {
        std::function<void(DocumentTable&)> before;
        TableState after;
        const char* shows; // DokuBez of the document then shown
        bool openedAnew;
        bool filterKnopf;
    };
    const auto result = [&](DocumentTable& table) {
        Recordset rows;
        rows.Open("SELECT * FROM SheetMTabelle", session_.database.Verbindung);
        table.showResult(std::move(rows), {});
    };
    const Case cases[] = {
        {[](DocumentTable& table) { table.close(); }, TableState::Open, "A", true, false},
        {[](DocumentTable&) {}, TableState::Open, "B", false, false},
        {[](DocumentTable& table) { table.showFiltered({}); }, TableState::Filtered, "B", false, true},
        {&DocumentTable::markNewer, TableState::NewerData, "B", false, true},
        {&DocumentTable::rebuildLater, TableState::Open, "A", true, false},
        {result, TableState::FilterResult, "F", false, false},
    };
    dokument(0, "A");
    dokument(0, "B");
    dokument(1, "F");
    dokument(2, "anderes");
    for (const Case& fall : cases) {
        page_.datenbankWechselt();
        tabs_.chooseTab(0);
        tabs_.chooseRow(1);
        tabs_.chooseTab(2);
        DocumentTable& table = tables_[0];
        fall.before(table);
        SCOPED_TRACE(static_cast<int>(table.state()));
        const unsigned generation = table.generation();
        tabs_.chooseTab(0);
        EXPECT_EQ(table.state(), fall.after);
        EXPECT_EQ(session_.AktDoku.DokuBez, fall.shows);
        EXPECT_EQ(table.generation() != generation, fall.openedAnew);
        EXPECT_EQ(heading_.showsFilterButton(), fall.filterKnopf);
        EXPECT_EQ(heading_.backTip(),
                  fall.filterKnopf ? "Filterung aufheben, alle Dokumente anzeigen" : "Zum Anfang der Tabelle");
    }
}

TEST_F(TableTest, BehindTheLastRowComesTheFirst)
{
    dokument(0, "A");
    dokument(0, "B");
    tabs_.chooseTab(0);
    for (const char* erwartet : {"B", "A", "B"}) {
        tabs_.nextRow();
        EXPECT_EQ(session_.AktDoku.DokuBez, erwartet);
    }
    tables_[0].rows().Find("DokuBez LIKE 'Q%'", 0, Suchrichtung::Vorwaerts, true);
    tabs_.followRow();
    EXPECT_EQ(session_.AktDoku.DokuBez, "A");
    tabs_.chooseRow(1);
    tabs_.back();
    EXPECT_EQ(session_.AktDoku.DokuBez, "A");
}

TEST_F(TableTest, NeuaufbauReadsTheTableAnewAndStaysOnTheDocument)
{
    dokument(0, "C", "a");
    dokument(0, "E'1", "b");
    const Zeilenschluessel letztes = dokument(0, "E'1", "a");
    tabs_.chooseTab(0);
    tabs_.chooseRow(2);
    tables_.indicator(0) = "10:15";
    dokument(0, "A");
    dokument(0, "B");
    tabs_.rebuild();
    EXPECT_EQ(liste(), "A/0 B/0 C/a E'1/b E'1/a "); // The higher revision first.
    EXPECT_EQ(session_.AktDoku.filename, pfad("E'1_a.par"));
    EXPECT_EQ(tables_[0].rows().AbsolutePosition(), 4u);
    EXPECT_EQ(tables_.indicators()[0], "");

    engine_->loesche("PartTabelle", letztes);
    tabs_.rebuild(); // The document is gone: the last place that there is.
    EXPECT_EQ(session_.AktDoku.filename, pfad("E'1_b.par"));

    tables_.indicator(4) = "10:20";
    tabs_.chooseTab(6);
    EXPECT_EQ(tables_.indicators()[4], "10:20");
    tabs_.rebuild(); // The special tables share the panel of the weldments.
    EXPECT_EQ(tables_.indicators()[4], "");
}

TEST_F(TableTest, LiftingAFilterBringsBackAllRows)
{
    for (const char* name : {"A", "B", "C"})
        dokument(0, name);
    tabs_.chooseTab(0);
    const auto filtere = [&] {
        tables_[0].rows().Filter("DokuBez Like 'B'");
        tables_[0].showFiltered({{{"DokuBez", "Dokumentname", "B"}}, {}, ""});
        tabs_.followRow();
    };
    filtere();
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 3; Filteranzahl: 1");
    filter_.typen[0].FilterAnzahl = 1;
    filter_.status.StatusFilter = "DokuBez >= 'B'"; // As a status filter would stay.
    tabs_.back();
    EXPECT_EQ(filter_.typen[0].FilterAnzahl, 0);
    EXPECT_EQ(liste(), "B/0 C/0 ");
    EXPECT_EQ(tables_[0].state(), TableState::Open);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 3");

    filter_.status = {};
    filtere();
    dokument(0, "D");
    tabs_.rebuild();
    EXPECT_EQ(liste(), "A/0 B/0 C/0 D/0 ");
    EXPECT_EQ(session_.AktDoku.DokuBez, "B");

    filtere();
    tables_[0].markNewer();
    dokument(0, "E");
    int drawn = 0;
    operations_.show = [&](const Parts& parts) { drawn += contains(parts, Part::Document) ? 1 : 0; };
    tabs_.back(); // The database has newer rows: they are read.
    EXPECT_EQ(liste(), "A/0 B/0 C/0 D/0 E/0 ");
    EXPECT_EQ(drawn, 1) << "one gesture, one drawing";
}

TEST_F(TableTest, ARowThatVanishedShowsAsFarAsItIsKnown)
{
    Zeilenschluessel weg = 0;
    engine_->beginne();
    for (int nummer = 1; nummer <= 2500; ++nummer) // Small tables are read whole and do not notice.
        weg = dokument(0, std::to_string(100000 + nummer));
    engine_->schliesseAb();
    tabs_.chooseTab(0);
    engine_->loesche("PartTabelle", weg);
    tabs_.chooseRow(2499);
    EXPECT_EQ(session_.AktDoku.DokuBez, "102500");
    EXPECT_EQ(session_.AktDoku.filename, "");
    EXPECT_TRUE(info_.general().nichtVorhanden);
    tabs_.nextRow();
    EXPECT_EQ(session_.AktDoku.filename, pfad("100001_0.par"));
}

TEST_F(TableTest, AFailedOpeningIsReportedAndLeavesNothingShown)
{
    dokument(1, "B");
    tabs_.chooseTab(1);
    siehtStati(""); // No visible status: no statement can be made of it.
    for (int mal = 0; mal < 2; ++mal) {
        welt_.meldungen.erwarte("Wechsel der Tabelle", "Fehler beim Wechsel der Tabelle!");
        welt_.meldungen.antworte();
        tabs_.chooseTab(0);
        EXPECT_EQ(welt_.meldungen.letzte().titel, "Fehlermeldung");
        EXPECT_EQ(tables_.tab(), 0);
        EXPECT_EQ(tables_[0].state(), TableState::NotOpen);
        EXPECT_EQ(session_.AktDoku, AktuellesDokument{});
    }
}

} // namespace
} // namespace quelvarn
