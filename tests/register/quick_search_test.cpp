#include "quick_fixture.h"

namespace quelvarn {
namespace {

class QuickSearchTest : public QuickTest
{
protected:
    QuickSearchTest()
    {
        for (const char* name : {"Achse", "Blech", "Bolzen", "Halter", "O'Neill", "Winkel"})
            dokument(0, name);
        dokument(1, "Bolzenblech");
        tabs_.chooseTab(0);
    }
};

TEST_F(QuickSearchTest, FindsFromTheTopOrOnFromTheRowShown)
{
    const struct
    {
        const char* text;
        std::size_t field;
        Suchverfahren place;
        const char* first;
        const char* next;
    } cases[] = {
        {"b", 0, TextAmAnfang, "Blech/0", "Bolzen/0"},
        {"LECH", 0, TextBeliebig, "Blech/0", "Achse/0"}, // One hit only: from the end back to the first row.
        {"lech", 0, TextAmAnfang, "Achse/0", "Achse/0"},
        {"winkel_0.par", 1, TextAmAnfang, "Winkel/0", "Achse/0"},
        {"W:\\Teile\\H", 2, TextAmAnfang, "Halter/0", "Achse/0"},
        {"O'Ne", 0, TextAmAnfang, "O'Neill/0", "Achse/0"},
        {"e%k", 0, TextBeliebig, "Achse/0", "Achse/0"},
        {"i%k", 0, TextBeliebig, "Winkel/0", "Achse/0"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        search_.setzeFeld(c.field);
        search_.setzeVerfahren(c.place);
        tabs_.chooseRow(3);
        search_.sucheText(c.text);
        EXPECT_EQ(current(), c.first);
        EXPECT_EQ(rows(), std::string(SUCHFELDER[c.field].feld) + "|" + std::string(SUCHFELDER[c.field].benennung) +
                              "|" + c.text + "\n");
        search_.suche();
        EXPECT_EQ(current(), c.next);
    }
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 6") << "a search is no filter";
    tabs_.chooseTab(1);
    EXPECT_EQ(rows(), "");
    search_.sucheText("Bolz");
    EXPECT_EQ(current(), "Bolzenblech/0");
}

TEST_F(QuickSearchTest, RefusesWhatIsNoKindOfSearchAndTakesTheTextAsAText)
{
    Recordset& parts = tables_[0].rows();
    welt_.meldungen.erwarte("Suchverfahren", "Falsches Suchverfahren!");
    EXPECT_FALSE(SuchenImRecordset(parts, "B", "DokuBez", 2, Suchbeginn::Oben, welt_.meldungen));
    EXPECT_FALSE(SuchenImRecordset(parts, "", "DokuBez", 7, Suchbeginn::Oben, welt_.meldungen));
    EXPECT_EQ(parts.AbsolutePosition(), 0U);
    EXPECT_FALSE(SuchenImRecordset(parts, "Zahnrad", "DokuBez", 0, Suchbeginn::Oben, welt_.meldungen));
    EXPECT_TRUE(parts.Eof());

    tabs_.chooseRow(2);
    for (const char* text : {"x' OR DokuBez LIKE 'Wink", "x' AND Status = ", "'", "''", "O''N"}) {
        search_.sucheText(text);
        EXPECT_EQ(current(), "Achse/0") << text << ": nothing found leads back to the first row";
    }
    search_.sucheText("O'N");
    EXPECT_EQ(current(), "O'Neill/0");
}

TEST_F(QuickSearchTest, KnowsThePercentSignAsItsOnlyWildcard)
{
    for (const char* name : {"TEST0", "TEST[01]", "TESTX01", "TEST_01", "TEST*01"})
        dokument(0, name);
    tabs_.rebuild();
    for (const char* text : {"TEST[01]", "TEST_0", "TEST*"}) {
        search_.sucheText(text);
        EXPECT_TRUE(current().starts_with(text)) << text << " / " << current();
        search_.suche();
        EXPECT_EQ(current(), "Achse/0") << text;
    }
    search_.sucheText("TEST%01]");
    EXPECT_EQ(current(), "TEST[01]/0");
}

TEST_F(QuickSearchTest, EachKeySearchesWhileTyping)
{
    search_.setzeSuchtext("Bl");
    search_.setzeBeimTippen(true);
    EXPECT_EQ(search_.TextDocuBez(), "Bl");
    EXPECT_EQ(current(), "Blech/0");
    search_.tippe("B");
    search_.tippe("Bo");
    EXPECT_EQ(current(), "Bolzen/0");
    search_.tippe("");
    EXPECT_EQ(current(), "Bolzen/0");
    search_.suche(); // From here on a key searches behind the row, until the search begins at the top again.
    search_.tippe("B");
    EXPECT_EQ(current(), "Achse/0");
    search_.sucheText("Winkel");
    EXPECT_EQ(current(), "Achse/0") << "the list is out of use";
    EXPECT_TRUE(session_.pages.Suchtexte.empty());

    search_.setzeBeimTippen(false);
    EXPECT_EQ(search_.CombSuchStr(), "B");
    search_.tippe("x");
    EXPECT_TRUE(tables_[1].state() == TableState::NotOpen) << "no other table was touched";
}

TEST_F(QuickSearchTest, RemembersTheLastEightTexts)
{
    for (const char* text : {"1", "2", "", "3", "4", "5", "2", "6", "7", "8"})
        SuchTextMerken(session_.pages.Suchtexte, text);
    EXPECT_EQ(session_.pages.Suchtexte, (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7", "8"}));
    search_.sucheText("9");
    EXPECT_EQ(search_.suchtexte(), (std::vector<std::string>{"2", "3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ(search_.CombSuchStr(), "9");
}

// Reading a column of a large table can be given up; then nothing is searched.
TEST_F(QuickSearchTest, ReadingAColumnCanBeGivenUp)
{
    engine_->beginne();
    for (int i = 0; i < 3000; ++i)
        dokument(2, "B-" + std::to_string(10000 + i));
    engine_->schliesseAb();
    tabs_.chooseTab(2);
    welt_.fortschritt = {};
    welt_.fortschritt.geduld = false;
    search_.setzeFeld(2);
    search_.setzeSuchtext("W:\\Teile\\B-12");
    search_.setzeBeimTippen(true);
    EXPECT_FALSE(search_.beimTippen());
    EXPECT_EQ(current(), "B-10000/0");
    welt_.fortschritt.geduld = true;
    search_.setzeBeimTippen(true);
    EXPECT_TRUE(search_.beimTippen());
    EXPECT_EQ(current(), "B-12000/0");
    search_.tippe("W:\\Teile\\B-125");
    EXPECT_EQ(welt_.fortschritt.begonnen, 2) << "a column is read once";
}

} // namespace
} // namespace quelvarn
