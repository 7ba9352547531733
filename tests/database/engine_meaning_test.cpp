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
INSTANTIATE_TEST_SUITE_P(, EngineMeaning, alleEngines, engineName);

TEST_P(EngineMeaning, ConditionsFindTheSameRowsOnEveryEngine)
{
    const std::vector<Value> worte{"Flansch", "FLANSCH ", "flansch  ", " Flansch", "Flanschring", "ÄRMEL",
                                   "ärmel",   "Ärmel ",   "Arm",       "Straße",   "STRASSE",     "50%",
                                   "a*b",     "O'Neill",  "C:\\Teil",  "",         " ",           "Ägypten",
                                   "łódź",    "ŁÓDŹ",     "πλ",        "a_b",      "a[b",         Value{}};
    std::vector<std::vector<Value>> zeilen;
    for (std::size_t i = 0; i < worte.size(); ++i)
        zeilen.push_back({static_cast<std::int64_t>(i), worte[i]});
    fuelle({{"Nr", FeldTyp::Ganzzahl}, {"Wort", FeldTyp::Text}}, zeilen);

    struct Fall
    {
        const char* bedingung;
        std::vector<std::string> nummern;
    };
    const Fall faelle[] = {
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
    for (const Fall& fall : faelle)
        EXPECT_EQ(lies(std::string("Select Nr From Tafel Where ") + fall.bedingung + " Order By Nr"), fall.nummern)
            << fall.bedingung;
}

// What a filter or a search means by its pattern is the same in a statement.
TEST_P(EngineMeaning, PatternsOfFiltersKnowOneWildcardAlone)
{
    const std::vector<Value> worte{"20_50",  "20x50", "A[1]", "A1",   "100%", "100 kg", "4*6", "4x6", "a\\b",
                                   "a\\\\b", "[",     "]",    "'a''", "#1!",  "?",      "51",  "",    Value{}};
    std::vector<std::vector<Value>> zeilen;
    for (std::size_t i = 0; i < worte.size(); ++i)
        zeilen.push_back({static_cast<std::int64_t>(i), worte[i]});
    fuelle({{"Nr", FeldTyp::Ganzzahl}, {"Wort", FeldTyp::Text}}, zeilen, {{{"Wort", false}}});
    for (const Wildcards wildcards : {Wildcards::Star, Wildcards::Percent}) {
        for (const char* muster :
             {"20_50", "20_*", "20_%", "a[1]", "A[*",  "A[%", "100%", "100*", "*[*",  "%[%", "*]*", "4*6",
              "4%6",   "A\\B", "*\\*", "%\\%", "'A''", "*'*", "#*",   "?",    "[!a]", "*",   "%"}) {
            std::vector<std::string> erwartet;
            for (std::size_t i = 0; i < worte.size(); ++i)
                if (!istNull(worte[i]) && LikePattern(muster, wildcards).matches(alsText(worte[i])))
                    erwartet.push_back(std::to_string(i));
            const auto gefragt = engine_->lese(
                sql::Query("Tafel").columns({"Nr"}).where(sql::like("Wort", muster, wildcards)).sortedBy("Nr"), {});
            EXPECT_EQ(EngineTest::zeilen(*gefragt), erwartet) << muster;
        }
    }
}

TEST_P(EngineMeaning, DistinctTakesOneOfEqualTexts)
{
    if (!engine_->faehigkeiten().distinctBlind)
        GTEST_SKIP() << "this engine leaves equal texts of different case to the caller";
    fuelleWorte({"Welle", "WELLE", "welle ", "Öl", "öl", Value{}, Value{}, ""});
    std::vector<std::string> worte = lies("Select Distinct Wort From Tafel");
    for (std::string& wort : worte)
        wort = sortKey(wort);
    EXPECT_THAT(worte, UnorderedElementsAre("welle", sortKey("Öl"), "null", ""));
}

TEST_P(EngineMeaning, OrderPutsNullFirstAndFollowsTheSortKeys)
{
    const std::vector<std::string> inOrdnung{"",    "_a",    "-b",  "1",     "12",  "2",
                                             "Arm", "Ärmel", "Arz", "Zange", "łuk", "Ω"};
    std::vector<Value> worte(inOrdnung.rbegin(), inOrdnung.rend());
    worte.insert(worte.begin() + 3, Value{});
    fuelleWorte(worte);

    std::vector<std::string> erwartet = inOrdnung;
    std::ranges::sort(erwartet, {}, sortKey);
    erwartet.insert(erwartet.begin(), "Null");
    EXPECT_EQ(lies("Select Wort From Tafel Order By Wort"), erwartet);
    std::ranges::reverse(erwartet);
    EXPECT_EQ(lies("Select Wort From Tafel Order By Wort Desc"), erwartet);
}

TEST_P(EngineMeaning, NewestRevisionComesFirstAndNullRevisionLast)
{
    fuelle({{"DokuBez", FeldTyp::Text}, {"RevBez", FeldTyp::Text}},
           {{"b", "A"}, {"A ", "0"}, {"a", Value{}}, {"a", "B"}, {Value{}, "C"}, {"B", "b"}});
    EXPECT_THAT(lies("Select DokuBez, RevBez From Tafel Order By DokuBez, RevBez Desc"),
                ElementsAre("Null|C", "a|B", "A |0", "a|Null", "B|b", "b|A"));
}

TEST_P(EngineMeaning, DatesAndNumbersCompareByValueWhateverTheyAreComparedWith)
{
    const auto am = [](int jahr, int monat, int tag, int stunde) {
        return Zeitpunkt::aus({jahr, monat, tag, stunde, 30, 15});
    };
    fuelle({{"Nr", FeldTyp::Ganzzahl}, {"Tag", FeldTyp::Datum}, {"Zahl", FeldTyp::Gleitkomma}, {"Wort", FeldTyp::Text}},
           {{1, am(1899, 12, 29, 6), -0.5, "1,5"},
            {2, am(2006, 3, 7, 0), 1e300, "2,5"},
            {3, am(2006, 3, 7, 23), 12.5, "drei"},
            {4, am(9999, 12, 31, 23), 0.0, ""},
            {5, Value{}, Value{}, Value{}}});
    EXPECT_EQ(fuehreAus("Insert Into Tafel (Nr, Tag, Zahl, Wort) Values ('6', '15.11.26', 2, 7)"), 1);

    const std::pair<const char*, std::vector<std::string>> faelle[] = {
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
    for (const auto& [bedingung, nummern] : faelle)
        EXPECT_EQ(lies(std::string("Select Nr From Tafel Where ") + bedingung), nummern) << bedingung;
    EXPECT_THAT(lies("Select Count(*) From Tafel Where Nr < 3"), ElementsAre("2"));
}

} // namespace
} // namespace quelvarn::test
