#include "register_fixture.h"

#include <functional>

namespace quelvarn {
namespace {

using TableTest = RegisterTest;

TEST_F(TableTest, OpensTheStartTableOncePerDatabase)
{
    addDocument(3, "Z-1");
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

    page_.databaseChanges();
    EXPECT_EQ(info_.page(), InfoPageId::None);
    EXPECT_EQ(session_.AktDoku, CurrentDocument{});
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
            addDocument(tab, std::to_string(status), "0", status);
    }
    seesStatuses("345");
    tabs_.chooseTab(0);
    EXPECT_EQ(list(), "3/0 4/0 5/0 ");
    session_.labels.SondertabelleName[0] = "Normteile";
    tabs_.chooseTab(5);
    EXPECT_EQ(list(), "1/0 3/0 4/0 5/0 ");
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Normteile, Anzahl: 4");
    EXPECT_EQ(info_.heading(), "  Eigenschaften Normteile");
}

TEST_F(TableTest, ATableWithOnlyHiddenDocumentsIsEmpty)
{
    addDocument(0, "A", "0", 1);
    addDocument(1, "B");
    seesStatuses("3");
    tabs_.chooseTab(1);
    tabs_.chooseTab(0);
    EXPECT_EQ(tables_[0].state(), TableState::Empty);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 0");
    EXPECT_EQ(tree(), "");
    EXPECT_EQ(info_.page(), InfoPageId::None);
    EXPECT_EQ(session_.AktDoku, CurrentDocument{});
    EXPECT_EQ(panels_.fileName() + panels_.folder() + panels_.status().text, "");
    tabs_.rebuild();
    tabs_.nextRow();
    tabs_.back();
    EXPECT_EQ(tables_[0].state(), TableState::Empty);
}

TEST_F(TableTest, TypeCodeOfAktDokuDependsOnWhoLoadedTheRow)
{
    const int afterRow[] = {1, 4, 3, 2, 1, 1, 1, 1};
    const int afterTab[] = {1, 4, 3, 2, 2, 1, 1, 1};
    for (const DocumentType& type : DOCUMENT_TYPES) {
        SCOPED_TRACE(type.table);
        addDocument(type.tab, "X");
        tabs_.chooseTab(type.tab);
        EXPECT_EQ(session_.AktDoku.Type, afterTab[type.tab]);
        tabs_.chooseRow(0);
        EXPECT_EQ(session_.AktDoku.Type, afterRow[type.tab]);
        EXPECT_EQ(tables_[type.tab].record().DokuArt, type.tab == 4 ? 6 : afterRow[type.tab]);
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
        bool filterButton;
    };
    const auto result = [&](DocumentTable& table) {
        Recordset rows;
        rows.Open("SELECT * FROM SheetMTabelle", session_.database.connection);
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
    addDocument(0, "A");
    addDocument(0, "B");
    addDocument(1, "F");
    addDocument(2, "anderes");
    for (const Case& testCase : cases) {
        page_.databaseChanges();
        tabs_.chooseTab(0);
        tabs_.chooseRow(1);
        tabs_.chooseTab(2);
        DocumentTable& table = tables_[0];
        testCase.before(table);
        SCOPED_TRACE(static_cast<int>(table.state()));
        const unsigned generation = table.generation();
        tabs_.chooseTab(0);
        EXPECT_EQ(table.state(), testCase.after);
        EXPECT_EQ(session_.AktDoku.DokuBez, testCase.shows);
        EXPECT_EQ(table.generation() != generation, testCase.openedAnew);
        EXPECT_EQ(heading_.showsFilterButton(), testCase.filterButton);
        EXPECT_EQ(heading_.backTip(),
                  testCase.filterButton ? "Filterung aufheben, alle Dokumente anzeigen" : "Zum Anfang der Tabelle");
    }
}

TEST_F(TableTest, BehindTheLastRowComesTheFirst)
{
    addDocument(0, "A");
    addDocument(0, "B");
    tabs_.chooseTab(0);
    for (const char* expected : {"B", "A", "B"}) {
        tabs_.nextRow();
        EXPECT_EQ(session_.AktDoku.DokuBez, expected);
    }
    tables_[0].rows().Find("DokuBez LIKE 'Q%'", 0, SearchDirection::Forward, true);
    tabs_.followRow();
    EXPECT_EQ(session_.AktDoku.DokuBez, "A");
    tabs_.chooseRow(1);
    tabs_.back();
    EXPECT_EQ(session_.AktDoku.DokuBez, "A");
}

TEST_F(TableTest, RebuildReadsTheTableAnewAndStaysOnTheDocument)
{
    addDocument(0, "C", "a");
    addDocument(0, "E'1", "b");
    const RowKey last = addDocument(0, "E'1", "a");
    tabs_.chooseTab(0);
    tabs_.chooseRow(2);
    tables_.indicator(0) = "10:15";
    addDocument(0, "A");
    addDocument(0, "B");
    tabs_.rebuild();
    EXPECT_EQ(list(), "A/0 B/0 C/a E'1/b E'1/a "); // The higher revision first.
    EXPECT_EQ(session_.AktDoku.filename, documentPath("E'1_a.par"));
    EXPECT_EQ(tables_[0].rows().absolutePosition(), 4u);
    EXPECT_EQ(tables_.indicators()[0], "");

    engine_->remove("PartTabelle", last);
    tabs_.rebuild(); // The document is gone: the last place that there is.
    EXPECT_EQ(session_.AktDoku.filename, documentPath("E'1_b.par"));

    tables_.indicator(4) = "10:20";
    tabs_.chooseTab(6);
    EXPECT_EQ(tables_.indicators()[4], "10:20");
    tabs_.rebuild(); // The special tables share the panel of the weldments.
    EXPECT_EQ(tables_.indicators()[4], "");
}

TEST_F(TableTest, LiftingAFilterBringsBackAllRows)
{
    for (const char* name : {"A", "B", "C"})
        addDocument(0, name);
    tabs_.chooseTab(0);
    const auto filter = [&] {
        tables_[0].rows().Filter("DokuBez Like 'B'");
        tables_[0].showFiltered({{{"DokuBez", "Dokumentname", "B"}}, {}, ""});
        tabs_.followRow();
    };
    filter();
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 3; Filteranzahl: 1");
    filter_.types[0].FilterAnzahl = 1;
    filter_.status.StatusFilter = "DokuBez >= 'B'"; // As a status filter would stay.
    tabs_.back();
    EXPECT_EQ(filter_.types[0].FilterAnzahl, 0);
    EXPECT_EQ(list(), "B/0 C/0 ");
    EXPECT_EQ(tables_[0].state(), TableState::Open);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 3");

    filter_.status = {};
    filter();
    addDocument(0, "D");
    tabs_.rebuild();
    EXPECT_EQ(list(), "A/0 B/0 C/0 D/0 ");
    EXPECT_EQ(session_.AktDoku.DokuBez, "B");

    filter();
    tables_[0].markNewer();
    addDocument(0, "E");
    int drawn = 0;
    operations_.show = [&](const Parts& parts) { drawn += contains(parts, Part::Document) ? 1 : 0; };
    tabs_.back(); // The database has newer rows: they are read.
    EXPECT_EQ(list(), "A/0 B/0 C/0 D/0 E/0 ");
    EXPECT_EQ(drawn, 1) << "one gesture, one drawing";
}

TEST_F(TableTest, ARowThatVanishedShowsAsFarAsItIsKnown)
{
    RowKey route = 0;
    engine_->begin();
    for (int number = 1; number <= 2500; ++number) // Small tables are read whole and do not notice.
        route = addDocument(0, std::to_string(100000 + number));
    engine_->commit();
    tabs_.chooseTab(0);
    engine_->remove("PartTabelle", route);
    tabs_.chooseRow(2499);
    EXPECT_EQ(session_.AktDoku.DokuBez, "102500");
    EXPECT_EQ(session_.AktDoku.filename, "");
    EXPECT_TRUE(info_.general().missing);
    tabs_.nextRow();
    EXPECT_EQ(session_.AktDoku.filename, documentPath("100001_0.par"));
}

TEST_F(TableTest, AFailedOpeningIsReportedAndLeavesNothingShown)
{
    addDocument(1, "B");
    tabs_.chooseTab(1);
    seesStatuses(""); // No visible status: no statement can be made of it.
    for (int times = 0; times < 2; ++times) {
        world_.boxes.expect("Wechsel der Tabelle", "Fehler beim Wechsel der Tabelle!");
        world_.boxes.answer();
        tabs_.chooseTab(0);
        EXPECT_EQ(world_.boxes.last().title, "Fehlermeldung");
        EXPECT_EQ(tables_.tab(), 0);
        EXPECT_EQ(tables_[0].state(), TableState::NotOpen);
        EXPECT_EQ(session_.AktDoku, CurrentDocument{});
    }
}

} // namespace
} // namespace quelvarn
