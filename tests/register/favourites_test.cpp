#include "database/sql/parser.h"
#include "favourites_fixture.h"

namespace quelvarn {

TEST_F(FavouritesTest, EachTabKeepsItsOwnAndRefusesDoubles)
{
    const struct
    {
        int tab;
        const char* key;
    } cases[] = {{0, "Part"}, {1, "SheetM"}, {2, "Assemb"}, {3, "Draft"},
                 {4, "Weld"}, {5, "STbl1"},  {6, "STbl2"},  {7, "STbl3"}};
    for (const auto& [tab, key] : cases) {
        addDocument(tab, "D'" + std::to_string(tab));
        tabs_.chooseTab(tab);
        favourites_.toFavourites();
        favourites_.toFavourites();
        const std::string name = "D'" + std::to_string(tab);
        const std::string file = tables_.current().record().Dateiname;
        EXPECT_EQ(grid(), name + "|0|" + file + "|" + documentPath(file) + "|\n");
    }
    EXPECT_EQ(stored(), "Mueller|Assemb|D'2|0\nMueller|Draft|D'3|0\nMueller|Part|D'0|0\nMueller|SheetM|D'1|0\n"
                        "Mueller|STbl1|D'5|0\nMueller|STbl2|D'6|0\nMueller|STbl3|D'7|0\nMueller|Weld|D'4|0\n");
}

TEST_F(FavouritesTest, AnEmptyTableHasNothingToKeep)
{
    tabs_.chooseTab(0);
    favourites_.toFavourites();
    EXPECT_EQ(stored(), "");
}

TEST_F(FavouritesTest, TheListIsReadWithTheFilesOfTheTable)
{
    addDocument(0, "B", "1");
    addDocument(0, "B", "2");
    row("PartTabelle", {{"DokuBez", "N"}, {"filename", documentPath("n.par")}}); // A revision of Null reads as none.
    store("Mueller", "Part", "n", Value{});
    store("Mueller", "Part", "b", "2");
    store("Mueller", "Part", "B", "2"); // Twice the same.
    store("Mueller", "Part", "Weg", "0");
    store("Meier", "Part", "B", "1");
    store("Mueller", "Draft", "B", "1");
    tabs_.chooseTab(0);
    favourites_.FavoritenZeigen(true);
    EXPECT_EQ(grid(), "b|2|B_2.par|W:\\Teile\\B_2.par|\nn||n.par|W:\\Teile\\n.par|\nWeg|0|||\n");

    favourites_.FavoritHinzufuegen("N", "", "Part", documentPath("n.par"));
    favourites_.FavoritHinzufuegen("B", "1", "Part", documentPath("B_1.par")); // Another revision is another favourite.
    EXPECT_EQ(favourites_.list()->RecordCount(), 4u);
}

TEST_F(FavouritesTest, AFaultOfTheLookupLeavesTheNamesAndIsTriedAgain)
{
    addDocument(0, "A");
    store("Mueller", "Part", "A", "0");
    tabs_.chooseTab(0);
    const auto table = engine_->findTable("PartTabelle");
    engine_->removeTable("PartTabelle");
    world_.boxes.expect("Modul: Ermitteln filename für DokuBez und RevBez",
                        "Fehler beim Ermitteln filename für DokuBez und RevBez!");
    world_.boxes.answer();
    favourites_.FavoritenZeigen(true);
    EXPECT_EQ(grid(), "A|0|||\n");

    engine_->createTable(*table);
    addDocument(0, "A");
    favourites_.FavoritenZeigen(false);
    favourites_.FavoritenZeigen(true);
    EXPECT_EQ(grid(), "A|0|A_0.par|W:\\Teile\\A_0.par|\n");
}

TEST_F(FavouritesTest, TheListGoesWithItsTabAndItsDatabase)
{
    addDocument(0, "A");
    store("Mueller", "Part", "A", "0");
    tabs_.chooseTab(0);
    const std::pair<const char*, std::function<void()>> leaves[] = {
        {"button", [&] { favourites_.FavoritenZeigen(false); }},
        {"tab", [&] { tabs_.chooseTab(1), tabs_.chooseTab(0); }},
        {"rebuild", [&] { tabs_.rebuild(); }},
        {"database", [&] { favourites_.databaseChanges(); }},
    };
    for (const auto& [how, leave] : leaves) {
        favourites_.FavoritenZeigen(true);
        favourites_.openManagement();
        EXPECT_TRUE(favourites_.showsFavourites() && favourites_.management()) << how;
        leave();
        EXPECT_FALSE(favourites_.showsFavourites() || favourites_.management()) << how;
    }
    EXPECT_EQ(favourites_.list(), nullptr); // Read anew from the next database.
}

TEST_F(FavouritesTest, RowsAreDeletedInTheListAndInTheTable)
{
    for (const char* name : {"A", "B", "C"})
        store("Mueller", "Part", name, name[0] == 'B' ? Value{} : Value("0"));
    store("Meier", "Part", "A", "0");
    tabs_.chooseTab(0);
    favourites_.FavoritenZeigen(true);
    favourites_.FavoritLoeschen();
    EXPECT_EQ(grid(), "B||||\nC|0|||\n");
    favourites_.FavoritLoeschen();
    EXPECT_EQ(stored(), "Meier|Part|A|0\nMueller|Part|C|0\n");
    store("Mueller", "Part", "Neu", "0"); // By another copy of the program: not on this list, so it stays.
    favourites_.AlleFavoritenLoeschen();
    favourites_.FavoritLoeschen();
    EXPECT_EQ(grid(), "");
    EXPECT_EQ(stored(), "Meier|Part|A|0\nMueller|Part|Neu|0\n");
}

const char* const GONE = "Datei ist in der Tabelle nicht vorhanden!\nes ist ein <Neuaufbau> erforderlich.\noder\n"
                         "Sie haben keine Zugriffsberechtigung!\noder\nTabelle ist gefiltert!";

TEST_F(FavouritesTest, AChosenRowMovesTheTable)
{
    for (const char* revision : {"1", "2"})
        addDocument(0, "B'b", revision);
    addDocument(0, "A");
    store("Mueller", "Part", "b'B", "1");
    store("Mueller", "Part", "Weg", "0");
    tabs_.chooseTab(0);
    favourites_.FavoritenZeigen(true);
    EXPECT_EQ(session_.AktDoku.DokuBez, "A"); // Showing the list chooses nothing.
    favourites_.rowChanged(0);
    EXPECT_EQ(session_.AktDoku.filename, documentPath("B'b_1.par"));
    EXPECT_NE(tree(), "");

    world_.boxes.expect("Favoriten", GONE);
    favourites_.FavoritAuswaehlen(1);
    EXPECT_EQ(session_.AktDoku.DokuBez, "B'b");

    favourites_.openManagement();
    tabs_.chooseRow(0);
    favourites_.rowChanged(0); // The keyboard only goes through the rows,
    EXPECT_EQ(session_.AktDoku.DokuBez, "A");
    favourites_.FavoritAuswaehlen(0); // the mouse chooses.
    EXPECT_EQ(session_.AktDoku.DokuBez, "B'b");
    EXPECT_TRUE(favourites_.showsFavourites() && favourites_.management());
}

TEST_F(FavouritesTest, AFilterIsLiftedWhenTheUserAgrees)
{
    const struct
    {
        const char* favourite;
        Answer answer;
        const char* shown;
        std::size_t rows;
        bool box;
    } cases[] = {
        {"A", Answer::Yes, "A", 3, false},
        {"B", Answer::No, "B", 1, false}, // Within the filter.
        {"A", Answer::No, "B", 1, true},
    };
    for (const char* name : {"A", "B", "C"})
        addDocument(0, name);
    store("Mueller", "Part", "A", "0");
    store("Mueller", "Part", "B", "0");
    for (const auto& c : cases) {
        tabs_.chooseTab(0);
        tabs_.rebuild();
        filter(0, "DokuBez = 'B'");
        tables_.announceRows(0);
        favourites_.FavoritenZeigen(true);
        expectFilterQuestion(0, c.answer);
        if (c.box)
            world_.boxes.expect("Favoriten", GONE);
        favourites_.FavoritAuswaehlen(c.favourite[0] == 'A' ? 0 : 1);
        EXPECT_EQ(session_.AktDoku.DokuBez, c.shown);
        EXPECT_EQ(tables_.current().visible().RecordCount(), c.rows);
        EXPECT_TRUE(favourites_.showsFavourites()); // Lifting a filter does not close the list.
    }
}

TEST_F(FavouritesTest, FilesOfManyFavouritesAreFoundByAnIndex)
{
    const std::string plan = engine_->executionPlan(std::get<sql::Select>(
        sql::parseStatement("SELECT DokuBez, RevBez, filename FROM PartTabelle WHERE DokuBez = 'A' OR DokuBez = 'B'")));
    EXPECT_EQ(plan.find("SCAN"), std::string::npos) << plan;
}

} // namespace quelvarn
