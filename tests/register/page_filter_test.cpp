#include "filter/filter_context.h"
#include "filter/filter_page.h"
#include "filter/lift_filter.h"
#include "filter/run_filter.h"
#include "filter/status_filter.h"
#include "filter/steps.h"
#include "register_fixture.h"

namespace quelvarn {
namespace {

// The filter engine over the tables that the document page owns.
class PageFilterTest : public RegisterTest
{
protected:
    PageFilterTest()
    {
        for (int tab : {0, 1, 6}) {
            for (int status = 0; status < 4; ++status)
                addDocument(tab, std::string(DOCUMENT_TYPES[tab].key.substr(0, 2)) + std::to_string(status), "0",
                            status);
            tabs_.chooseTab(tab);
        }
        tabs_.chooseTab(0);
    }

    void choose(const char* field, const char* value) { AddFilterStep(context_, value, field, 0); }
    void status(std::initializer_list<std::size_t> statuses)
    {
        auto& tick = context_.state().ChFilterStat;
        tick.fill(false);
        for (const std::size_t stat : statuses)
            tick[stat] = true;
        BuildStatusFilter(filter_, context_.tab);
    }
    std::size_t shown(int tab) { return tables_[tab].visible().RecordCount(); }

    FilterContext context_{session_, operations_, filter_, tables_};
};

TEST_F(PageFilterTest, ARunShowsWhatIsLeftAndWhatWasChosen)
{
    status({1, 2});
    choose("DokuBez", "Pa*");
    choose("Dateiname", "Pa*");
    choose("Projekt", "P1");
    world_.boxes.answer();
    FilterEigenMerkBenutzDef(context_);
    EXPECT_EQ(world_.boxes.last().title, "Filtervorgaben");
    EXPECT_EQ(list(), "Pa1/0 Pa2/0 ");
    EXPECT_EQ(session_.AktDoku.DokuBez, "Pa1");
    EXPECT_EQ(tables_.current().state(), TableState::Filtered);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4; Filteranzahl: 2");
    EXPECT_EQ(tables_.current().narrowing().values.size(), 3U)
        << "rows of forgotten steps stay until the page renews them";
    status({});
    tabs_.back();
    EXPECT_EQ(shown(0), 4U);
    EXPECT_EQ(context_.state().FilterAnzahl, 0);
}

TEST_F(PageFilterTest, ARunWithNothingChosenLiftsTheFilterThatWasThere)
{
    for (const auto section : {FilterSection::Properties, FilterSection::Structure, FilterSection::UserDefined}) {
        for (const bool filtered : {false, true}) {
            context_.state().section = FilterSection::Properties;
            if (filtered) {
                choose("DokuBez", "Pa1");
                FilterEigenMerkBenutzDef(context_);
                ASSERT_EQ(shown(0), 1U);
            }
            context_.state().section = section;
            clearFilter(context_.state());
            FilterEigenMerkBenutzDef(context_);
            EXPECT_EQ(tables_.current().state(), TableState::Open);
            EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4");
            EXPECT_EQ(shown(0), 4U);
        }
    }
    choose("DokuBez", "Pa1");
    FilterEigenMerkBenutzDef(context_);
    clearFilter(context_.state());
    status({2, 3});
    FilterEigenMerkBenutzDef(context_);
    EXPECT_EQ(shown(0), 2U) << "the status condition stays";
}

TEST_F(PageFilterTest, MainValuesOfTheStructureCountThoughNoStepWasChosen)
{
    context_.state().section = FilterSection::Structure;
    context_.state().HauptwertBereich[0] = {Decimal::ofUnits(10000), Decimal::ofUnits(20000)};
    context_.state().HauptwertAktiv = true;
    FilterEigenMerkBenutzDef(context_);
    EXPECT_EQ(tables_.current().state(), TableState::Filtered);
    EXPECT_EQ(shown(0), 0U);
}

TEST_F(PageFilterTest, TheResetBringsEveryOpenTableBackToItsStatusCondition)
{
    choose("DokuBez", "Pa1");
    FilterEigenMerkBenutzDef(context_);
    context_.tab = 1;
    choose("DokuBez", "Sh1");
    FilterEigenMerkBenutzDef(context_);
    context_.tab = 0;
    status({2, 3});
    addDocument(6, "STbl neu");
    tables_[6].markNewer();

    ResetAllFilters(context_);
    const std::size_t count[]{2, 2, 3};
    for (int i = 0; const int tab : {0, 1, 6}) {
        EXPECT_EQ(shown(tab), count[i++]) << tab;
        EXPECT_EQ(tables_[tab].state(), TableState::Open) << tab;
        EXPECT_TRUE(tables_[tab].narrowing().values.empty()) << tab;
        EXPECT_EQ(filter_.types[static_cast<std::size_t>(tab)].FilterString, "") << tab;
    }
    EXPECT_FALSE(tables_[3].isOpen());
    EXPECT_TRUE(context_.FilterWerteTabelle().empty());
    status({});
    ResetAllFilters(context_);
    EXPECT_EQ(shown(0), 4U);
    EXPECT_EQ(shown(6), 5U);
}

TEST_F(PageFilterTest, ALimitOfTheStatusesIsToldAsLongAsItNarrowsTheRows)
{
    const std::string all = "Zugriffsberechtigung:             Alle Stati von 0 bis 5";
    const std::string heading = "  Solid Edge - Dokumente, Bauteile, Anzahl: 4";
    const auto shows = [&](const std::string& access, const std::string& count, std::size_t rows) {
        EXPECT_EQ(heading_.accessText(), access);
        EXPECT_EQ(heading_.isStatusLimited(), access != all);
        EXPECT_EQ(heading_.countText(), heading + count);
        ASSERT_EQ(heading_.filterRows().size(), rows);
        if (access != all)
            EXPECT_EQ(heading_.filterRows().back(), (FilterRow{"", "Status", " >= 2 und <= 3"}));
    };
    const std::string limit = "             Status >= 2 und <= 3";
    status({2, 3});
    shows(all, "", 0); // Until a run.
    FilterEigenMerkBenutzDef(context_);
    shows(limit, "; Filteranzahl: 2", 1);
    choose("DokuBez", "Pa3");
    FilterEigenMerkBenutzDef(context_);
    shows(limit, "; Filteranzahl: 1", 2);
    tabs_.back();
    EXPECT_EQ(tables_.current().state(), TableState::Open);
    shows(limit, "; Filteranzahl: 2", 1); // It stays.
    tabs_.chooseTab(1);
    EXPECT_EQ(heading_.accessText(), all) << "this table is not narrowed";
    tabs_.chooseTab(0);
    shows(limit, "; Filteranzahl: 2", 1);

    context_.state().section = FilterSection::Structure;
    choose("DokuBez", "Pa1"); // Structure features heed no status.
    FilterEigenMerkBenutzDef(context_);
    shows(all, "; Filteranzahl: 1", 1);
    status({});
    tabs_.rebuild();
    shows(all, "", 0);
}

TEST_F(PageFilterTest, TheValuesStayListedWhileTheyNarrowTheTable)
{
    FilterPage& page = program_.filterPage;
    page.OpenFilterPage();
    context_.state().ChFilterStat.fill(false);
    AddFilterStep(context_, "Pa1", "DokuBez", 0);
    page.filter();
    ASSERT_EQ(shown(0), 1U);
    const std::vector<FilterRow> values = heading_.filterRows();
    ASSERT_EQ(values.size(), 1U);
    page.sectionChosen(FilterSection::Structure);
    EXPECT_EQ(heading_.filterRows(), values);
    page.back();
    EXPECT_EQ(heading_.filterRows(), values);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4; Filteranzahl: 1");
    page.filter(); // Nothing is chosen on this part: all rows again.
    EXPECT_EQ(shown(0), 4U);
    EXPECT_TRUE(heading_.filterRows().empty());
}

TEST_F(PageFilterTest, AResultOfItsOwnIsGivenUpByTheNextRunAndByTheReset)
{
    for (const bool reset : {false, true}) {
        Recordset none;
        none.appendField("DokuBez", FieldType::Text);
        none.Open();
        tables_[0].showResult(std::move(none), {});
        choose("DokuBez", "Pa2");
        if (reset)
            ResetAllFilters(context_);
        else
            FilterEigenMerkBenutzDef(context_);
        EXPECT_EQ(list(), reset ? "Pa0/0 Pa1/0 Pa2/0 Pa3/0 " : "Pa2/0 ");
    }
}

} // namespace
} // namespace quelvarn
