#include "base/runtime_error.h"
#include "database/recordset.h"
#include "database/recordset_columns.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace quelvarn;
using testing::ElementsAre;

namespace {

// A recordset in memory with the fields Name (text), Nr (integer) and Wert (double).
Recordset recordsetWith(const std::vector<std::pair<std::string, int>>& rows)
{
    Recordset rs;
    rs.appendField("Name", FieldType::Text);
    rs.appendField("Nr", FieldType::Integer);
    rs.appendField("Wert", FieldType::FloatingPoint);
    rs.Open();
    for (const auto& [name, number] : rows) {
        rs.AddNew();
        rs.setField("Name", name);
        rs.setField("Nr", number);
        rs.Update();
    }
    if (!rs.empty())
        rs.MoveFirst();
    return rs;
}

std::vector<std::string> names(const Recordset& rs)
{
    std::vector<std::string> result;
    for (std::size_t i = 0; i < rs.RecordCount(); ++i)
        result.push_back(asText(rs.cell(i, "Name")));
    return result;
}

int faultNumber(const std::function<void()>& action)
{
    try {
        action();
    } catch (const RuntimeError& fault) {
        EXPECT_NE(fault.description(), "");
        return fault.number();
    }
    return 0;
}

// Where the cursor stands: "bof", "eof", "leer" or the name of the row.
std::string position(const Recordset& rs)
{
    if (rs.empty())
        return "leer";
    return rs.bof() ? "bof" : rs.eof() ? "eof" : rs.Text("name");
}

struct Movement
{
    std::string steps; // f first, l last, n next, p previous, d delete, a add "N"
    std::string position;
};

class RecordsetCursor : public testing::TestWithParam<Movement>
{};

TEST_P(RecordsetCursor, StandsWhereAdoWouldStand)
{
    auto rs = recordsetWith({{"A", 1}, {"B", 2}, {"C", 3}});
    for (const char step : GetParam().steps) {
        if (step == 'f')
            rs.MoveFirst();
        else if (step == 'l')
            rs.MoveLast();
        else if (step == 'n')
            rs.MoveNext();
        else if (step == 'p')
            rs.movePrevious();
        else if (step == 'd')
            rs.Delete();
        else {
            rs.AddNew();
            rs.setField("NAME", "N");
        }
    }
    EXPECT_EQ(position(rs), GetParam().position);
}

INSTANTIATE_TEST_SUITE_P(Steps, RecordsetCursor,
                         testing::Values(Movement{"", "A"}, Movement{"n", "B"}, Movement{"nnn", "eof"},
                                         Movement{"p", "bof"}, Movement{"pn", "A"}, Movement{"lnp", "C"},
                                         Movement{"d", "B"}, Movement{"ld", "eof"}, Movement{"ldp", "B"},
                                         Movement{"ddd", "leer"}, Movement{"ddda", "N"}, Movement{"dddaf", "N"},
                                         Movement{"a", "N"}, Movement{"afp", "bof"}, Movement{"an", "eof"},
                                         Movement{"ap", "C"}, Movement{"ad", "A"}, Movement{"nad", "B"}));

TEST(Recordset, RefusesWhatThereIsNoRowOrFieldFor)
{
    auto rs = recordsetWith({{"A", 1}});
    const auto empty = [] { return recordsetWith({}); };
    const std::vector<std::pair<int, std::function<void()>>> cases{
        {3265, [&] { rs.field("Gibtsnicht"); }},
        {3265, [&] { rs.setField("Gibtsnicht", Value{}); }},
        {3265, [&] { rs.Filter("Gibtsnicht = 1"); }},
        {3265, [&] { rs.Sort("Gibtsnicht"); }},
        {3001, [&] { rs.Find(""); }},
        {3705, [&] { rs.appendField("Spaeter", FieldType::Text); }},
        {3021, [&] { empty().field("Name"); }},
        {3021, [&] { empty().MoveFirst(); }},
        {3021, [&] { empty().MoveNext(); }},
        {3021, [&] { empty().Delete(); }},
        {3021, [&] { empty().setField("Name", Value{}); }},
        {3021, [&] { empty().bookmark(); }},
        {3704, [&] { Recordset().MoveFirst(); }},
        {3704, [&] { Recordset().AddNew(); }},
        {-2147217913, [&] { rs.setField("Nr", "abc"); }},
    };
    for (std::size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(faultNumber(cases[i].second), cases[i].first) << "case " << i;
    rs.MoveNext();
    EXPECT_EQ(faultNumber([&] { rs.MoveNext(); }), 3021);
    EXPECT_EQ(faultNumber([&] { rs.field("Name"); }), 3021);
    EXPECT_TRUE(Recordset().empty());
}

TEST(Recordset, TakesValuesAsTheTypeOfTheirField)
{
    auto rs = recordsetWith({});
    rs.AddNew();
    EXPECT_TRUE(isNull(rs.field("Nr")));
    rs.setField("Nr", "12");
    rs.setField("Wert", "1,5");
    rs.setField("Name", 2.25);
    EXPECT_EQ(rs.field("nr"), Value(std::int64_t{12}));
    rs.Update();
    EXPECT_EQ(rs.field("NR"), Value(std::int64_t{12}));
    EXPECT_EQ(rs.field("Wert"), Value(1.5));
    EXPECT_EQ(rs.Text("Name"), "2,25");
    rs.setField("Name", Value{});
    rs.setField("Wert", Value{});
    rs.Update();
    EXPECT_TRUE(isNull(rs.field("Name")) && isNull(rs.field("Wert")));
    rs.setField("Name", std::string());
    EXPECT_FALSE(isNull(rs.field("Name")));
}

TEST(Recordset, CancelUpdateForgetsAndAMoveKeepsWhatWasSet)
{
    auto rs = recordsetWith({{"A", 1}, {"B", 2}});
    rs.setField("Name", "X");
    rs.CancelUpdate();
    EXPECT_EQ(rs.Text("Name"), "A");
    rs.AddNew();
    rs.CancelUpdate();
    EXPECT_THAT(names(rs), ElementsAre("A", "B"));
    rs.setField("Name", "X");
    rs.MoveNext();
    EXPECT_THAT(names(rs), ElementsAre("X", "B"));
}

TEST(Recordset, BookmarksOutliveFilterSortAndDeletion)
{
    auto rs = recordsetWith({{"C", 3}, {"A", 1}, {"D", 4}, {"B", 2}});
    rs.MoveLast();
    const Bookmark b = rs.bookmark();
    rs.MoveFirst();
    const Bookmark c = rs.bookmark();
    rs.Sort("Name");
    ASSERT_TRUE(rs.setBookmark(b));
    EXPECT_EQ(rs.absolutePosition(), 1u);
    rs.Filter("Nr < 3");
    EXPECT_TRUE(rs.setBookmark(b));
    EXPECT_FALSE(rs.setBookmark(c));
    EXPECT_EQ(rs.Text("Name"), "B");
    rs.Delete();
    EXPECT_TRUE(rs.eof());
    EXPECT_EQ(rs.absolutePosition(), rs.RecordCount());
    rs.Filter("");
    EXPECT_FALSE(rs.setBookmark(b));
    rs.Sort("");
    EXPECT_THAT(names(rs), ElementsAre("C", "A", "D"));
    rs.setPosition(2);
    EXPECT_EQ(rs.Text("Name"), "D");
}

TEST(Recordset, SortsAsTheDatabaseDoesNullFirstAndStable)
{
    auto rs = recordsetWith({{"b", 1}, {"Ä", 2}, {"a", 1}, {"B ", 2}, {"z", 2}});
    rs.AddNew();
    rs.setField("Nr", 2);
    rs.Update();
    rs.Sort("Name");
    EXPECT_THAT(names(rs), ElementsAre("", "a", "Ä", "b", "B ", "z"));
    rs.Sort("Name DESC");
    EXPECT_THAT(names(rs), ElementsAre("z", "b", "B ", "Ä", "a", ""));
    rs.Sort("[Nr] asc, Name desc");
    EXPECT_THAT(names(rs), ElementsAre("b", "a", "z", "B ", "Ä", ""));
    rs.Filter("Nr = 2");
    EXPECT_THAT(names(rs), ElementsAre("z", "B ", "Ä", ""));
    rs.AddNew();
    rs.setField("Name", "neu");
    rs.Update();
    EXPECT_THAT(names(rs), ElementsAre("z", "B ", "Ä", "", "neu"));
    rs.Sort("Wert");
    EXPECT_THAT(names(rs), ElementsAre("Ä", "B ", "z", "", "neu"));
}

TEST(Recordset, SortsNumbersOfBothSigns)
{
    auto rs = recordsetWith({});
    for (const double value : {2.5, -1.0, 0.0, -3.5, 1e300, -1e-300}) {
        rs.AddNew();
        rs.setField("Wert", value);
        rs.Update();
    }
    rs.Sort("Wert");
    std::vector<double> values;
    for (std::size_t i = 0; i < rs.RecordCount(); ++i)
        values.push_back(asNumber(rs.cell(i, "Wert")));
    EXPECT_THAT(values, ElementsAre(-3.5, -1.0, -1e-300, 0.0, 2.5, 1e300));
}

TEST(Recordset, FindGoesBothWaysAndEndsBehindTheRows)
{
    auto rs = recordsetWith({{"Achse", 1}, {"Welle", 2}, {"Achse 2", 3}, {"a*", 4}, {"Hauptachse", 5}});
    struct TestCase
    {
        std::string criterion;
        std::size_t start, skip;
        SearchDirection direction;
        bool fromStart;
        std::string position;
    };
    const auto before = SearchDirection::Forward;
    const auto back = SearchDirection::Backwards;
    const std::vector<TestCase> cases{
        {"Name LIKE 'achse%'", 0, 0, before, false, "Achse"},
        {"Name LIKE 'ACHSE%'", 0, 1, before, false, "Achse 2"},
        {"Name LIKE '%achse%'", 3, 0, before, false, "Hauptachse"},
        {"Name LIKE '%achse%'", 3, 0, before, true, "Achse"},
        {"Name LIKE 'achse%'", 2, 1, before, false, "eof"},
        {"Name LIKE 'achse%'", 3, 0, back, false, "Achse 2"},
        {"Name LIKE 'achse%'", 2, 1, back, false, "Achse"},
        {"Name LIKE 'achse%'", 0, 1, back, false, "bof"},
        {"Name LIKE '%achse%'", 0, 0, back, true, "Hauptachse"},
        {"Name LIKE 'x%'", 0, 0, before, true, "eof"},
        {"Name LIKE 'a*'", 0, 0, before, true, "a*"},
        {"Nr > 1 AND Nr < 4", 0, 1, before, false, "Welle"},
        {"Name LIKE 'achse%'", 0, 9, before, false, "eof"},
    };
    for (const TestCase& testCase : cases) {
        rs.setPosition(testCase.start);
        const bool found = rs.Find(testCase.criterion, testCase.skip, testCase.direction, testCase.fromStart);
        EXPECT_EQ(position(rs), testCase.position) << testCase.criterion;
        EXPECT_EQ(found, testCase.position != "eof" && testCase.position != "bof") << testCase.criterion;
    }
    rs.Sort("Name");
    rs.Filter("Name LIKE '*achse*'");
    EXPECT_TRUE(rs.Find("Name LIKE '%achse%'", 1));
    EXPECT_EQ(rs.Text("Name"), "Achse 2");
}

TEST(Recordset, ABadFilterLeavesTheOldOne)
{
    auto rs = recordsetWith({{"A", 1}, {"B", 2}});
    rs.Filter("Nr = 2");
    for (const auto* bad : {"Nr = ", "Nr = 2 OR", "Weg = 1", "DROP TABLE x"})
        EXPECT_NE(faultNumber([&] { rs.Filter(bad); }), 0) << bad;
    EXPECT_EQ(rs.filter().text, "Nr = 2");
    EXPECT_THAT(names(rs), ElementsAre("B"));
    rs.Filter("Nr > 5");
    EXPECT_TRUE(rs.empty());
    rs.Filter("");
    EXPECT_EQ(position(rs), "A");
}

TEST(Recordset, CloseAndOpenEmptyARecordsetInMemory)
{
    auto rs = recordsetWith({{"A", 1}});
    rs.Close();
    EXPECT_FALSE(rs.open());
    rs.Open();
    EXPECT_TRUE(rs.empty());
    EXPECT_TRUE(hasField(rs, "WERT"));
}

} // namespace
