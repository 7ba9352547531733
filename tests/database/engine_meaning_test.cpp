#include "base/collation.h"
#include "base/like_pattern.h"
#include "database/engine_fixture.h"
#include "database/sql/conditions.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace quelvarn::test {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class EngineMeaning : public EngineTest
{};
INSTANTIATE_TEST_SUITE_P(, EngineMeaning, allEngines, engineName);

TEST_P(EngineMeaning, ConditionsFindTheSameRowsOnEveryEngine)
{
    const std::vector<Value> words{"Flansch", "FLANSCH ", "flansch  ", " Flansch", "Flanschring", "ÄRMEL",
                                   "ärmel",   "Ärmel ",   "Arm",       "Straße",   "STRASSE",     "50%",
                                   "a*b",     "O'Neill",  "C:\\Teil",  "",         " ",           "Ägypten",
                                   "łódź",    "ŁÓDŹ",     "πλ",        "a_b",      "a[b",         Value{}};
    std::vector<std::vector<Value>> rows;
    for (std::size_t i = 0; i < words.size(); ++i)
        rows.push_back({static_cast<std::int64_t>(i), words[i]});
    fill({{"Nr", FieldType::Integer}, {"Wort", FieldType::Text}}, rows);

    struct TestCase
    {
        const char* condition;
        std::vector<std::string> numbers;
    };
    const TestCase cases[] = {
        {"Wort = 'flansch'", {"0", "1", "2"}},
        {"Wort = 'ärmel'", {"5", "6", "7"}},
        {"Wort = 'strasse'", {"9", "10"}},
        {"Wort = ' flansch'", {"3"}},
        {"Wort = ''", {"15", "16"}},
        {"Wort = 'ŁÓDŹ '", {"18", "19"}},
        {"Wort = 'c:\\teil'", {"14"}},
        {"Wort = 'O''Neill'", {"13"}},
        {"Wort Is Null", {"23"}},
        {"Wort > 'arm' And Wort < 'b'", {"5", "6", "7"}},
        {"Wort >= 'straße' And Nr < 23", {"9", "10", "18", "19", "20"}},
        {"Wort <> 'flansch' And Nr < 5", {"3", "4"}},
        {"Wort Like 'flansch'", {"0"}},
        {"Wort Like 'FLANSCH%'", {"0", "1", "2", "4"}},
        {"Wort Like '%rmel'", {"5", "6"}},
        {"Wort Like 'äR_el'", {"5", "6"}},
        {"Wort Like '%ó%'", {"18", "19"}},
        {"Wort Like '[a-b]rm'", {"8"}},
        {"Wort Like '%[%]'", {"11"}},
        {"Wort Like 'a[_]b'", {"21"}},
        {"Wort Like 'a_b'", {"12", "21", "22"}},
        {"Wort Like 'a[[]b'", {"22"}},
        {"Wort Like '[a-c].b'", {}},
        {"Wort Like '%\\teil'", {"14"}},
        {"Wort Like '%''%'", {"13"}},
        {"Wort Like ''", {"15"}},
        {"Wort Like ' '", {"16"}},
        {"Nr > 14 And Wort Not Like '' And Wort Not Like ' '", {"17", "18", "19", "20", "21", "22"}},
        {"Nr >= 21 And Not (Wort Like 'a_b')", {}},
        {"Nr = 1 Or (Nr = 2 And Wort = 'x')", {"1"}},
    };
    for (const TestCase& testCase : cases)
        EXPECT_EQ(read(std::string("Select Nr From Tafel Where ") + testCase.condition + " Order By Nr"),
                  testCase.numbers)
            << testCase.condition;
}

// What a filter or a search means by its pattern is the same in a statement.
TEST_P(EngineMeaning, PatternsOfFiltersKnowOneWildcardAlone)
{
    const std::vector<Value> words{"20_50",  "20x50", "A[1]", "A1",   "100%", "100 kg", "4*6", "4x6", "a\\b",
                                   "a\\\\b", "[",     "]",    "'a''", "#1!",  "?",      "51",  "",    Value{}};
    std::vector<std::vector<Value>> rows;
    for (std::size_t i = 0; i < words.size(); ++i)
        rows.push_back({static_cast<std::int64_t>(i), words[i]});
    fill({{"Nr", FieldType::Integer}, {"Wort", FieldType::Text}}, rows, {{{"Wort", false}}});
    for (const Wildcards wildcards : {Wildcards::Star, Wildcards::Percent}) {
        for (const char* pattern :
             {"20_50", "20_*", "20_%", "a[1]", "A[*",  "A[%", "100%", "100*", "*[*",  "%[%", "*]*", "4*6",
              "4%6",   "A\\B", "*\\*", "%\\%", "'A''", "*'*", "#*",   "?",    "[!a]", "*",   "%"}) {
            std::vector<std::string> expected;
            for (std::size_t i = 0; i < words.size(); ++i)
                if (!isNull(words[i]) && LikePattern(pattern, wildcards).matches(asText(words[i])))
                    expected.push_back(std::to_string(i));
            const auto asked = engine_->read(
                sql::Query("Tafel").columns({"Nr"}).where(sql::like("Wort", pattern, wildcards)).sortedBy("Nr"), {});
            EXPECT_EQ(EngineTest::rows(*asked), expected) << pattern;
        }
    }
}

TEST_P(EngineMeaning, DistinctTakesOneOfEqualTexts)
{
    if (!engine_->capabilities().distinctBlind)
        GTEST_SKIP() << "this engine leaves equal texts of different case to the caller";
    fillWords({"Welle", "WELLE", "welle ", "Öl", "öl", Value{}, Value{}, ""});
    std::vector<std::string> words = read("Select Distinct Wort From Tafel");
    for (std::string& word : words)
        word = sortKey(word);
    EXPECT_THAT(words, UnorderedElementsAre("welle", sortKey("Öl"), "null", ""));
}

TEST_P(EngineMeaning, OrderPutsNullFirstAndFollowsTheSortKeys)
{
    const std::vector<std::string> inOrder{"", "_a", "-b", "1", "12", "2", "Arm", "Ärmel", "Arz", "Zange", "łuk", "Ω"};
    std::vector<Value> words(inOrder.rbegin(), inOrder.rend());
    words.insert(words.begin() + 3, Value{});
    fillWords(words);

    std::vector<std::string> expected = inOrder;
    std::ranges::sort(expected, {}, sortKey);
    expected.insert(expected.begin(), "Null");
    EXPECT_EQ(read("Select Wort From Tafel Order By Wort"), expected);
    std::ranges::reverse(expected);
    EXPECT_EQ(read("Select Wort From Tafel Order By Wort Desc"), expected);
}

TEST_P(EngineMeaning, NewestRevisionComesFirstAndNullRevisionLast)
{
    fill({{"DokuBez", FieldType::Text}, {"RevBez", FieldType::Text}},
         {{"b", "A"}, {"A ", "0"}, {"a", Value{}}, {"a", "B"}, {Value{}, "C"}, {"B", "b"}});
    EXPECT_THAT(read("Select DokuBez, RevBez From Tafel Order By DokuBez, RevBez Desc"),
                ElementsAre("Null|C", "a|B", "A |0", "a|Null", "B|b", "b|A"));
}

TEST_P(EngineMeaning, DatesAndNumbersCompareByValueWhateverTheyAreComparedWith)
{
    const auto at = [](int year, int month, int day, int hour) {
        return DateTime::from({year, month, day, hour, 30, 15});
    };
    fill({{"Nr", FieldType::Integer},
          {"Tag", FieldType::Date},
          {"Zahl", FieldType::FloatingPoint},
          {"Wort", FieldType::Text}},
         {{1, at(1899, 12, 29, 6), -0.5, "1,5"},
          {2, at(2006, 3, 7, 0), 1e300, "2,5"},
          {3, at(2006, 3, 7, 23), 12.5, "drei"},
          {4, at(9999, 12, 31, 23), 0.0, ""},
          {5, Value{}, Value{}, Value{}}});
    EXPECT_EQ(execute("Insert Into Tafel (Nr, Tag, Zahl, Wort) Values ('6', '15.11.26', 2, 7)"), 1);

    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"Tag >= #03/07/06 00:00:00# And Tag <= #03/07/06 23:59:59# Order By Nr", {"2", "3"}},
        {"Tag < #01/01/2000# Order By Tag", {"1"}},
        {"Tag = #11/15/26#", {"6"}},
        {"Tag = '15.11.2026'", {"6"}},
        {"Tag = 'gestern'", {}},
        {"Tag = #02/28/1901#", {}},
        {"Tag Is Not Null Order By Tag Desc", {"4", "6", "3", "2", "1"}},
        {"Zahl <> 0 And Zahl <= 12.5 Order By Zahl", {"1", "6", "3"}},
        {"Zahl >= '12,5' Order By Nr", {"2", "3"}},
        {"Not Zahl < 'viel'", {}},
        {"Zahl Like '12,%'", {"3"}},
        {"Zahl Is Null", {"5"}},
        {"Nr = '3'", {"3"}},
        {"Nr <= '2' Order By Nr", {"1", "2"}},
        {"Nr > 4.5 Order By Nr", {"5", "6"}},
        {"Wort > 1.5 Order By Nr", {"2", "3", "6"}},
        {"Wort = 7", {"6"}},
        {"(Nr = 1 Or Nr = 2) And Not (Nr = 2 And Wort Is Null) Order By Nr", {"1", "2"}},
    };
    for (const auto& [condition, numbers] : cases)
        EXPECT_EQ(read(std::string("Select Nr From Tafel Where ") + condition), numbers) << condition;
    EXPECT_THAT(read("Select Count(*) From Tafel Where Nr < 3"), ElementsAre("2"));
}

} // namespace
} // namespace quelvarn::test
