#include "base/runtime_error.h"
#include "filter/filter_fixture.h"
#include "filter/lift_filter.h"
#include "filter/property_run.h"
#include "filter/run_filter.h"
#include "filter/status_filter.h"
#include "filter/steps.h"
#include "filter/structure_run.h"

namespace quelvarn {
namespace {

const std::string CAUSE =
    "Mögliche Ursache:\n- Sie haben keine Zugriffsberechtigung.\n- Es ist ein <Neuaufbau> erforderlich.";

// Eight parts: A to D of Meier, E to H of Schulze.
class FilterRunTest : public FilterTest
{
protected:
    FilterRunTest()
    {
        const auto day = [](int t) { return DateTime::from({2026, 11, t, 23, 59, 59}); };
        part("A", "Meier", "Welle 1", 0, day(3));
        part("B", "Meier", "Welle 2", 1, day(4));
        part("C", "Meier", "Achse", 2, day(11));
        part("D", "Meier", "Achse", 3, day(12));
        part("E", "Schulze", "Welle 1", 1, day(3));
        part("F", "Schulze", "Rad", 2, day(4));
        part("G", "Schulze", "Rad", 3, day(11));
        addDocument("H", {{"Autor", "schulze"}, {"Hauptwert_b", 1.5}, {"Hauptmerkmal_C", "W"}});
    }

    void part(const std::string& name, const char* author, const char* title, int status, DateTime day)
    {
        addDocument(name, {{"Autor", author},
                           {"Titel", title},
                           {"Status", status},
                           {"Erstellt", day},
                           {"Hauptwert_b", 2.0 + status},
                           {"Hauptmerkmal_C", "W"},
                           {"Hauptmerkmal_D", title}});
    }

    TypeFilter& state() { return context_.state(); }
    void steps(const std::vector<FilterStep>& fresh)
    {
        state().FilterSchritte.fill({});
        std::copy(fresh.begin(), fresh.end(), state().FilterSchritte.begin());
        state().FilterAnzahl = static_cast<int>(fresh.size());
    }
    void tick(std::initializer_list<std::size_t> statuses)
    {
        state().ChFilterStat.fill(false);
        for (const std::size_t status : statuses)
            state().ChFilterStat[status] = true;
        BuildStatusFilter(filter_, 0);
    }
    void expectEmpty(const std::string& text) { world_.boxes.expect("Filtervorgaben", text + CAUSE); }
};

const FilterStep MEIER{"Autor", "meier", CodeText, {}};
const FilterStep SHAFT{"Titel", "Welle*", CodeText, {}};
const FilterStep NOBODY{"Projekt", "P1", CodeText, {}};

TEST_F(FilterRunTest, StepsNarrowTogetherAndTheStatusConditionStandsBeforeThem)
{
    tick({1, 3});
    steps({MEIER, SHAFT, {"Erstellt", "04.11.26", CodeCreated + 1, {}}});
    EXPECT_TRUE(ApplyPropertyFilter(context_));
    EXPECT_EQ(shown(), "B");
    EXPECT_EQ(table().filter().text,
              " ( Status >= 1  AND Status <= 3) AND Autor Like 'meier' AND Titel Like 'Welle*' AND "
              "Erstellt >= #04/11/26 00:00:00# AND Erstellt <= #04/11/26 23:59:59#");
    EXPECT_EQ(state().FilterString, "Autor Like 'meier' AND Titel Like 'Welle*' AND "
                                    "Erstellt >= #11/04/26 00:00:00# AND Erstellt <= #11/04/26 23:59:59#");
}

TEST_F(FilterRunTest, AStatusStepAppliesNothing)
{
    steps({{"Status", "3", CodeStatus, {}}, MEIER, {"Status", "1", CodeStatus + 2, {}}});
    EXPECT_TRUE(ApplyPropertyFilter(context_));
    EXPECT_EQ(shown(), "A B C D");
    EXPECT_EQ(state().FilterString, "Autor Like 'meier'");
}

TEST_F(FilterRunTest, StepsThatLeaveNothingAreTakenBackOneByOne)
{
    expectEmpty("Filter 4:\nEs gibt keine Datensätze mit diesen Filtervorgaben!\n"
                "Es wird das Ergebnis bis Filter 3 angezeigt.\n");
    expectEmpty("Filter 3:\nEs gibt keine Datensätze mit diesen Filtervorgaben!\n"
                "Es wird das Ergebnis bis Filter 2 angezeigt.\n");
    steps({MEIER, SHAFT, NOBODY, MEIER});
    FilterEigenMerkBenutzDef(context_);
    EXPECT_EQ(shown(), "A B");
    EXPECT_EQ(state().FilterAnzahl, 2);
    EXPECT_EQ(state().FilterString, "Autor Like 'meier' AND Titel Like 'Welle*'");
}

TEST_F(FilterRunTest, TheFirstOfSeveralStepsStaysThoughItLeavesNothing)
{
    tick({2});
    expectEmpty("Filter 2:\nEs gibt keine Datensätze mit diesen Filtervorgaben\nunter Berücksichtigung der "
                "Status-Werte!\nEs wird das Ergebnis bis Filter 1 angezeigt.\n");
    expectEmpty("Es gibt keine Datensätze mit diesen Filtervorgaben!\nunter Berücksichtigung der Status-Werte!\n\n");
    steps({NOBODY, SHAFT});
    FilterEigenMerkBenutzDef(context_);
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(state().FilterAnzahl, 1);
}

TEST_F(FilterRunTest, ASingleStepMayLeaveAnEmptyTable)
{
    steps({NOBODY});
    EXPECT_TRUE(ApplyPropertyFilter(context_));
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(state().FilterAnzahl, 1);
    tick({0, 1});
    steps({});
    EXPECT_TRUE(ApplyPropertyFilter(context_));
    EXPECT_EQ(shown(), "A B E");
    EXPECT_EQ(state().FilterString, "");
}

TEST_F(FilterRunTest, ARefusedStepLocksTheRunUntilTheReset)
{
    steps({MEIER});
    ASSERT_TRUE(ApplyPropertyFilter(context_));
    for (int i = 0; i < 5; ++i) {
        AddFilterStep(context_, "Welle*", "Titel", 0);
        if (i == 3)
            world_.boxes.expect("Anzahl Filter", "Alle Filter sind gefüllt!");
    }
    EXPECT_EQ(state().FilterAnzahl, ALL_FILLED);
    EXPECT_EQ(context_.FilterWerteTabelle().size(), 5U);
    EXPECT_FALSE(ApplyPropertyFilter(context_));
    EXPECT_FALSE(ApplyStructureFilter(context_));
    EXPECT_EQ(shown(), "A B C D");
    EXPECT_EQ(state().FilterString, "Autor Like 'meier'");
    EXPECT_EQ(forgetFilter(filter_, 0).StatusFilter, "");
    EXPECT_EQ(state().FilterAnzahl, 0);
}

TEST_F(FilterRunTest, TheStructureAllowsSevenStepsAndHeedsNoStatusCondition)
{
    tick({0});
    context_.state().section = FilterSection::Structure;
    for (const char* value : {"W", "*", "*", "*", "*", "Welle 1", "Welle*"})
        AddFilterStep(context_, value, *value == 'W' && value[1] ? "Hauptmerkmal_D" : "Hauptmerkmal_C", 0);
    EXPECT_EQ(context_.FilterWerteTabelle().size(), 7U);
    EXPECT_TRUE(ApplyStructureFilter(context_));
    EXPECT_EQ(shown(), "A E");
    world_.boxes.expect("Anzahl Filter", "Alle Filter sind gefüllt!");
    AddFilterStep(context_, "W", "Hauptmerkmal_C", 0);
    EXPECT_EQ(state().FilterAnzahl, ALL_FILLED);
}

TEST_F(FilterRunTest, MainValuesNarrowTheRowsAndLeaveTheFilterStringAlone)
{
    context_.state().section = FilterSection::Structure;
    state().HauptwertBereich[1] = {Decimal::ofUnits(15000), Decimal::ofUnits(20000)};
    ASSERT_TRUE(ApplyStructureFilter(context_) && ApplyHauptwertFilter(context_));
    EXPECT_EQ(table().filter().text, "Hauptwert_b >= 1.5 AND Hauptwert_b <= 2");
    EXPECT_EQ(shown(), "A H");
    steps({{"Hauptmerkmal_D", "Welle*", CodeText, {}}});
    ASSERT_TRUE(ApplyStructureFilter(context_) && ApplyHauptwertFilter(context_));
    EXPECT_EQ(shown(), "A");
    EXPECT_EQ(state().FilterString, "Hauptmerkmal_D Like 'Welle*'");
}

// A stored number is met as the four places say, wherever binary arithmetic has left it.
TEST_F(FilterRunTest, MainValuesAreComparedInFourPlaces)
{
    context_.state().section = FilterSection::Structure;
    const struct
    {
        const char* name;
        Value stored;
    } documents[] = {{"N1", 0.8}, {"N2", 0.1 + 0.7}, {"N3", 0.8F + 0.0}, {"N4", 0.8001}, {"N5", 0.59995},
                     {"N6", 0.6}, {"N7", 1.1 - 0.5}, {"N8", 0.5999},     {"N9", Value{}}};
    for (const auto& document : documents)
        addDocument(document.name, {{"Hauptwert_a", document.stored}});
    reopen();
    state().HauptwertBereich[0] = {Decimal::ofUnits(6000), Decimal::ofUnits(8000)};
    ASSERT_TRUE(ApplyStructureFilter(context_) && ApplyHauptwertFilter(context_));
    EXPECT_EQ(table().filter().text, "Hauptwert_a >= 0.6 AND Hauptwert_a <= 0.8");
    EXPECT_EQ(shown(), "N1 N2 N3 N5 N6 N7");
}

TEST_F(FilterRunTest, AFaultOrGivingUpLeavesRowsAndFilterAsTheyWere)
{
    tick({0, 1, 2});
    steps({MEIER});
    ASSERT_TRUE(ApplyPropertyFilter(context_));
    table().MoveLast();
    const std::string expression = table().filter().text;
    const auto stays = [&](const char* run) {
        EXPECT_EQ(shown(), "A B C") << run;
        EXPECT_EQ(table().filter().text, expression) << run;
        EXPECT_EQ(table().Text("DokuBez"), "C") << run;
        EXPECT_EQ(state().FilterString, "Autor Like 'meier'") << run;
        EXPECT_EQ(state().FilterAnzahl, 2) << run;
    };
    steps({MEIER, {"Gibtesnicht", "1", CodeText, {}}});
    EXPECT_THROW(ApplyPropertyFilter(context_), RuntimeError);
    stays("unknown field");
    EXPECT_THROW(ApplyStructureFilter(context_), RuntimeError);
    stays("unknown field on the structure tab");
    steps({{"Autor Like 'x' OR Status", "3", CodeText, {}}, SHAFT});
    EXPECT_THROW(ApplyPropertyFilter(context_), RuntimeError);
    stays("a condition as a field");

    world_.progress.patience = false;
    steps({MEIER, {"Thema", "x", CodeText, {}}});
    EXPECT_FALSE(ApplyPropertyFilter(context_));
    stays("given up");
    EXPECT_FALSE(ApplyStructureFilter(context_));
    stays("given up on the structure tab");
}

TEST_F(FilterRunTest, AStepThatIsNoDateHasABoxOfItsOwn)
{
    steps({MEIER, {"Erstellt", "gestern", CodeCreated, {}}});
    world_.boxes.expect("Erstellen Filterstring", "Fehler beim Erstellen Filterstring!");
    world_.boxes.answer();
    EXPECT_FALSE(ApplyPropertyFilter(context_));
    EXPECT_EQ(shown(), "A B C D E F G H");
}

} // namespace
} // namespace quelvarn
