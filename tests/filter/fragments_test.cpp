#include "base/runtime_error.h"
#include "filter/filter_run.h"
#include "filter/fragments.h"
#include "filter/status_filter.h"

#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace quelvarn {
namespace {

struct TestCase
{
    FilterStep step;
    const char* filterForm;
    const char* sqlForm;
};

TEST(Fragments, AStepIsOneConditionInTwoForms)
{
    const std::vector<TestCase> cases{
        {{"Projekt", "A100", 0, {}}, "Projekt Like 'A100'", "Projekt Like 'A100'"},
        {{"Titel", "*W_l[lm]e%", 0, {}}, "Titel Like '*W_l[lm]e%'", "Titel Like '*W_l[lm]e%'"},
        {{"Autor", "O'Neill", 0, {}}, "Autor Like 'O''Neill'", "Autor Like 'O''Neill'"},
        {{"Projekt", "", 0, {}}, "", ""},
        {{"Status", "3", 11, {}}, "", ""},
        {{"Erstellt", "03.04.26", 20, {}}, "Erstellt >= #03/04/26 00:00:00#", "Erstellt >= #04/03/26 00:00:00#"},
        {{"Erstellt", "15.11.2026", 21, {}},
         "Erstellt >= #15/11/26 00:00:00# AND Erstellt <= #15/11/26 23:59:59#",
         "Erstellt >= #11/15/26 00:00:00# AND Erstellt <= #11/15/26 23:59:59#"},
        {{"Erstellt", "1.2.26 14:30:00", 22, {}}, "Erstellt <= #01/02/26 23:59:59#", "Erstellt <= #02/01/26 23:59:59#"},
        {{"Geaendert", "15.11.26", 30, {}}, "Geaendert >= #15/11/26 00:00:00#", "Geaendert >= #11/15/26 00:00:00#"},
        {{"Geaendert", "03.04.26", 31, {}},
         "Geaendert >= #03/04/26 00:00:00# AND Geaendert <= #03/04/26 23:59:59#",
         "Geaendert >= #04/03/26 00:00:00# AND Geaendert <= #04/03/26 23:59:59#"},
        {{"Geaendert", "03.04.26", 32, {}}, "Geaendert <= #03/04/26 23:59:59#", "Geaendert <= #04/03/26 23:59:59#"},
        {{"Status", "3,0", 40, {}}, "Status = 3", "Status = 3"},
        {{"Dateiname", "*welle*", 50, {}}, "Dateiname Like '*welle*'", "Dateiname Like '*welle*'"},
        {{"filename", "W:\\A*", 50, {}}, "filename Like 'W:\\A*'", "filename Like 'W:\\A*'"},
        {{"Titel", "100-*", 50, {}}, "DokuBez Like '100-*'", "DokuBez Like '100-*'"},
        {{"Titel", "", 50, {}}, "DokuBez Like ''", "DokuBez Like ''"},
        {{"Dateiname", "a", 60, {}}, "Dateiname Like 'a'", "Dateiname Like 'a'"},
        {{"Dateiname", "", 60, {}}, "", ""},
    };
    for (const TestCase& testCase : cases) {
        const StepFragment fragment = stepFragment(testCase.step, 0);
        EXPECT_EQ(fragment.filterForm, testCase.filterForm);
        EXPECT_EQ(fragment.sqlForm, testCase.sqlForm);
    }
    EXPECT_EQ(stepFragment({"Dateiname", "a", CodeFile, {}}, 1).filterForm, "") << "known to the first step alone";
    EXPECT_EQ(structureFragment({"Hauptmerkmal_C", "20.1", CodeCreated, {}}).filterForm, "Hauptmerkmal_C Like '20.1'");
}

TEST(Fragments, WhatIsNoDateOrNumberIsAFault)
{
    EXPECT_THROW(stepFragment({"Erstellt", "31.02.26", 20, {}}, 0), RuntimeError);
    EXPECT_THROW(stepFragment({"Geaendert", "", 31, {}}, 0), RuntimeError);
    EXPECT_THROW(stepFragment({"Status", "drei", 40, {}}, 0), RuntimeError);
}

TEST(Fragments, MainValuesWithBoundsFollowOneAnother)
{
    std::array<MainValueBand, MAIN_VALUE_COUNT> bounds{};
    EXPECT_EQ(mainValueFragments(bounds, true), "");
    bounds[1] = {Decimal::ofUnits(15000), Decimal::ofUnits(20000)};
    EXPECT_EQ(mainValueFragments(bounds, false), "Hauptwert_b >= 1.5 AND Hauptwert_b <= 2");
    bounds[6] = {Decimal(), Decimal::ofUnits(12342500)};
    EXPECT_EQ(mainValueFragments(bounds, true), " AND Hauptwert_b >= 1.5 AND Hauptwert_b <= 2"
                                                " AND Hauptwert_g >= 0 AND Hauptwert_g <= 1234.25");
}

// Whatever the values hold, the text of a filter reads as the steps that it was made of.
// The value that a condition asks for, by itself, by a pattern or by both; "?" for a condition of another form.
std::string meant(const sql::Expression& condition)
{
    if (const auto* either = std::get_if<sql::Or>(&condition.content)) {
        const std::string value = meant(*either->parts.at(0));
        return either->parts.size() == 2 && meant(*either->parts[1]) == value ? value : "?";
    }
    const auto& comparison = std::get<sql::Condition>(condition.content);
    const auto& value = std::get<std::string>(comparison.value);
    const bool plain = comparison.comparison == sql::Comparison::Equal;
    const bool pattern = comparison.comparison == sql::Comparison::Like && comparison.wildcards == Wildcards::Star &&
                         value.find('*') != std::string::npos;
    return plain || pattern ? value : "?";
}

TEST(Fragments, EveryValueIsReadAsItWasChosen)
{
    const char* const pieces[]{"a", "'", "''", "' AND ", " OR ", "Titel Like '", "[", "_", "*", "%", " ", ")", "x"};
    std::minstd_rand random(7);
    for (int i = 0; i < 3000; ++i) {
        TypeFilter state;
        while (state.FilterAnzahl < 3) {
            std::string value;
            while (value.empty() || random() % 5 != 0)
                value += pieces[random() % std::size(pieces)];
            state.FilterSchritte[static_cast<std::size_t>(state.FilterAnzahl++)] = {"Autor", value, CodeText, {}};
        }
        const ChainLink link = formChain(state, stepFragment).back();
        const auto read = filterCondition(link.sqlForm);
        const auto& parts = std::get<sql::And>(read->content).parts;
        ASSERT_EQ(parts.size(), 3U) << link.sqlForm;
        for (std::size_t n = 0; n < parts.size(); ++n) {
            for (const sql::Expression& expression : {std::cref(*parts[n]), std::cref(*link.conditions[n])})
                EXPECT_EQ(meant(expression), state.FilterSchritte[n].value) << link.sqlForm;
        }
    }
    EXPECT_EQ(LikeFragment("Titel", "O'Ring 5''"), "Titel Like 'O''Ring 5'''''");
}

TEST(StatusFilter, FollowsTheTickedBoxesAndClosesGaps)
{
    struct
    {
        const char* tick;
        const char* afterwards;
        const char* condition;
        const char* shortText;
    } const cases[]{
        {"012345", "012345", "", ""},
        {"", "", "", ""},
        {"2", "2", "( Status = 2)", " = 2"},
        {"0", "0", "( Status = 0)", " = 0"},
        {"13", "123", "( Status >= 1  AND Status <= 3)", " >= 1 und <= 3"},
        {"124", "1234", "( Status >= 1  AND Status <= 4)", " >= 1 und <= 4"},
        {"03", "0123", "( Status >= 0  AND Status <= 3)", " >= 0 und <= 3"},
        {"05", "012345", "( Status >= 0  AND Status <= 5)", " >= 0 und <= 5"},
        {"45", "45", "( Status >= 4  AND Status <= 5)", " >= 4 und <= 5"},
        {"35", "345", "( Status >= 3  AND Status <= 3)", " >= 3 und <= 5"},
        {"345", "345", "( Status >= 3  AND Status <= 3)", " >= 3 und <= 5"},
    };
    for (const auto& testCase : cases) {
        FilterState filter;
        auto& tick = filter.types[2].ChFilterStat;
        for (const char* digit = testCase.tick; *digit; ++digit)
            tick[static_cast<std::size_t>(*digit - '0')] = true;
        BuildStatusFilter(filter, 2);
        std::string afterwards;
        for (std::size_t status = 0; status < tick.size(); ++status)
            afterwards += tick[status] ? std::to_string(status) : "";
        EXPECT_EQ(afterwards, testCase.afterwards);
        const auto withHeading = [&](const std::string& heading) {
            return *testCase.condition ? heading + testCase.condition : "";
        };
        EXPECT_EQ(filter.status.StatusFilter, withHeading(" "));
        EXPECT_EQ(filter.status.StatusFilterWhere, withHeading(" WHERE "));
        EXPECT_EQ(filter.status.StatusFilterAnd, withHeading(" AND "));
        EXPECT_EQ(filter.status.shortText, testCase.shortText);
        EXPECT_EQ(filter.status.legend,
                  *testCase.shortText ? std::string("             Status") + testCase.shortText : "");
    }
}

} // namespace
} // namespace quelvarn
