#include "quick_fixture.h"

namespace quelvarn {
namespace {

class QuickSearchTest : public QuickTest
{
protected:
    QuickSearchTest()
    {
        for (const char* name : {"Achse", "Blech", "Bolzen", "Halter", "O'Neill", "Winkel"})
            addDocument(0, name);
        addDocument(1, "Bolzenblech");
        tabs_.chooseTab(0);
    }
};

TEST_F(QuickSearchTest, FindsFromTheTopOrOnFromTheRowShown)
{
    const struct
    {
        const char* text;
        std::size_t field;
        SearchMethod place;
        const char* first;
        const char* next;
    } cases[] = {
        {"b", 0, TextAtBegin, "Blech/0", "Bolzen/0"},
        {"LECH", 0, TextAny, "Blech/0", "Achse/0"}, // One hit only: from the end back to the first row.
        {"lech", 0, TextAtBegin, "Achse/0", "Achse/0"},
        {"winkel_0.par", 1, TextAtBegin, "Winkel/0", "Achse/0"},
        {"W:\\Teile\\H", 2, TextAtBegin, "Halter/0", "Achse/0"},
        {"O'Ne", 0, TextAtBegin, "O'Neill/0", "Achse/0"},
        {"e%k", 0, TextAny, "Achse/0", "Achse/0"},
        {"i%k", 0, TextAny, "Winkel/0", "Achse/0"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        search_.setField(c.field);
        search_.setMethod(c.place);
        tabs_.chooseRow(3);
        search_.searchText(c.text);
        EXPECT_EQ(current(), c.first);
        EXPECT_EQ(rows(), std::string(SEARCH_FIELDS[c.field].field) + "|" +
                              std::string(SEARCH_FIELDS[c.field].caption) + "|" + c.text + "\n");
        search_.search();
        EXPECT_EQ(current(), c.next);
    }
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 6") << "a search is no filter";
    tabs_.chooseTab(1);
    EXPECT_EQ(rows(), "");
    search_.searchText("Bolz");
    EXPECT_EQ(current(), "Bolzenblech/0");
}

TEST_F(QuickSearchTest, RefusesWhatIsNoKindOfSearchAndTakesTheTextAsAText)
{
    Recordset& parts = tables_[0].rows();
    world_.boxes.expect("Suchverfahren", "Falsches Suchverfahren!");
    EXPECT_FALSE(SuchenImRecordset(parts, "B", "DokuBez", 2, SearchStart::Above, world_.boxes));
    EXPECT_FALSE(SuchenImRecordset(parts, "", "DokuBez", 7, SearchStart::Above, world_.boxes));
    EXPECT_EQ(parts.absolutePosition(), 0U);
    EXPECT_FALSE(SuchenImRecordset(parts, "Zahnrad", "DokuBez", 0, SearchStart::Above, world_.boxes));
    EXPECT_TRUE(parts.eof());

    tabs_.chooseRow(2);
    for (const char* text : {"x' OR DokuBez LIKE 'Wink", "x' AND Status = ", "'", "''", "O''N"}) {
        search_.searchText(text);
        EXPECT_EQ(current(), "Achse/0") << text << ": nothing found leads back to the first row";
    }
    search_.searchText("O'N");
    EXPECT_EQ(current(), "O'Neill/0");
}

TEST_F(QuickSearchTest, KnowsThePercentSignAsItsOnlyWildcard)
{
    for (const char* name : {"TEST0", "TEST[01]", "TESTX01", "TEST_01", "TEST*01"})
        addDocument(0, name);
    tabs_.rebuild();
    for (const char* text : {"TEST[01]", "TEST_0", "TEST*"}) {
        search_.searchText(text);
        EXPECT_TRUE(current().starts_with(text)) << text << " / " << current();
        search_.search();
        EXPECT_EQ(current(), "Achse/0") << text;
    }
    search_.searchText("TEST%01]");
    EXPECT_EQ(current(), "TEST[01]/0");
}

TEST_F(QuickSearchTest, EachKeySearchesWhileTyping)
{
    search_.setSearchText("Bl");
    search_.setAtTyping(true);
    EXPECT_EQ(search_.TextDocuBez(), "Bl");
    EXPECT_EQ(current(), "Blech/0");
    search_.type("B");
    search_.type("Bo");
    EXPECT_EQ(current(), "Bolzen/0");
    search_.type("");
    EXPECT_EQ(current(), "Bolzen/0");
    search_.search(); // From here on a key searches behind the row, until the search begins at the top again.
    search_.type("B");
    EXPECT_EQ(current(), "Achse/0");
    search_.searchText("Winkel");
    EXPECT_EQ(current(), "Achse/0") << "the list is out of use";
    EXPECT_TRUE(session_.pages.SearchTexts.empty());

    search_.setAtTyping(false);
    EXPECT_EQ(search_.CombSuchStr(), "B");
    search_.type("x");
    EXPECT_TRUE(tables_[1].state() == TableState::NotOpen) << "no other table was touched";
}

TEST_F(QuickSearchTest, RemembersTheLastEightTexts)
{
    for (const char* text : {"1", "2", "", "3", "4", "5", "2", "6", "7", "8"})
        SuchTextMerken(session_.pages.SearchTexts, text);
    EXPECT_EQ(session_.pages.SearchTexts, (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7", "8"}));
    search_.searchText("9");
    EXPECT_EQ(search_.searchTexts(), (std::vector<std::string>{"2", "3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ(search_.CombSuchStr(), "9");
}

// Reading a column of a large table can be given up; then nothing is searched.
TEST_F(QuickSearchTest, ReadingAColumnCanBeGivenUp)
{
    engine_->begin();
    for (int i = 0; i < 3000; ++i)
        addDocument(2, "B-" + std::to_string(10000 + i));
    engine_->commit();
    tabs_.chooseTab(2);
    world_.progress = {};
    world_.progress.patience = false;
    search_.setField(2);
    search_.setSearchText("W:\\Teile\\B-12");
    search_.setAtTyping(true);
    EXPECT_FALSE(search_.atTyping());
    EXPECT_EQ(current(), "B-10000/0");
    world_.progress.patience = true;
    search_.setAtTyping(true);
    EXPECT_TRUE(search_.atTyping());
    EXPECT_EQ(current(), "B-12000/0");
    search_.type("W:\\Teile\\B-125");
    EXPECT_EQ(world_.progress.begun, 2) << "a column is read once";
}

} // namespace
} // namespace quelvarn
