#include "base/file_path.h"
#include "base/runtime_error.h"
#include "database/connection.h"
#include "database/recordset.h"
#include "database/recordset_columns.h"
#include "database/recordset_lists.h"
#include "engine_fixture.h"
#include "recordset_reference.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <map>
#include <set>

using namespace quelvarn;
using quelvarn::test::allEngines;
using quelvarn::test::engineName;
using reference::FIELDS;
using testing::ElementsAre;

namespace {

class RecordsetOnEngine : public quelvarn::test::EngineTest
{
protected:
    void fillRandomly(std::size_t count)
    {
        std::vector<ColumnInfo> columns{{"Id", FieldType::Integer}};
        for (const auto& field : FIELDS)
            columns.push_back({field.name, field.type});
        std::vector<std::vector<Value>> values;
        for (std::size_t i = 0; i < count; ++i) {
            rows_.push_back(random_.row());
            values.push_back({static_cast<std::int64_t>(i)});
            values.back().insert(values.back().end(), rows_.back().begin(), rows_.back().end());
        }
        fill(columns, values, {{{"Titel", false}, {"Nr", true}}});
    }

    Recordset openRs(std::string_view sql, LockType lock = LockType::ReadOnly, std::size_t wholeUntil = 2048)
    {
        if (!connection_.open() && isOdbc())
            connection_ = Connection(open());
        else if (!connection_.open()) // An empty file is no database yet.
            connection_.openAddress(isPostgres() ? address_ : utf8FromPath(folder_ / "test.qv"));
        Recordset rs;
        setWholeLimit(rs, wholeUntil);
        rs.Open(select(sql), connection_, CursorType::Static, lock);
        return rs;
    }

    static std::vector<std::string> column(const Recordset& rs, std::string_view field)
    {
        std::vector<std::string> values;
        for (std::size_t i = 0; i < rs.RecordCount(); ++i)
            values.push_back(isNull(rs.cell(i, field)) ? "Null" : asText(rs.cell(i, field)));
        return values;
    }

    // Behind ODBC a recordset is read whole, so that there is nothing to read later.

    static int faultNumber(const std::function<void()>& action)
    {
        try {
            action();
        } catch (const RuntimeError& fault) {
            return fault.number();
        }
        return 0;
    }

    Connection connection_;
    reference::Random random_{7};
    std::vector<reference::Row> rows_;
};
INSTANTIATE_TEST_SUITE_P(, RecordsetOnEngine, allEngines, engineName);

// What an engine without row keys cannot: read a column later, tell rows apart that are equal throughout.
class RecordsetWithRowKeys : public RecordsetOnEngine
{};
INSTANTIATE_TEST_SUITE_P(, RecordsetWithRowKeys, test::ownEngines, engineName);

// Everything a user of a recordset sees, in one text.
std::string picture(const Recordset& rs)
{
    std::string text = std::to_string(rs.absolutePosition()) + (rs.bof() ? " bof\n" : rs.eof() ? " eof\n" : "\n");
    for (std::size_t i = 0; i < rs.RecordCount(); ++i) {
        for (const ColumnInfo& field : rs.fields())
            text += asText(rs.cell(i, field.name)) + "|";
        text += '\n';
    }
    return text;
}

TEST_P(RecordsetWithRowKeys, ReadsLaterWhatItWouldHaveReadAtOnce)
{
    fillRandomly(500);
    const auto* sql = "SELECT * FROM Tafel WHERE Nr >= 0 ORDER BY Titel, Nr DESC";
    Recordset whole = openRs(sql, LockType::Optimistic);
    Recordset late = openRs(sql, LockType::Optimistic, 10);
    ASSERT_TRUE(columnLoaded(whole, "Thema"));
    ASSERT_FALSE(columnLoaded(late, "Thema"));
    ASSERT_TRUE(columnLoaded(late, "Titel"));
    // The order of rows that are equal in the sort columns is the engine's own.
    const std::vector<std::function<void(Recordset&)>> actions{
        [](Recordset& rs) { rs.Sort("Titel, Nr, Id"); },
        [](Recordset& rs) { rs.setPosition(17); },
        [](Recordset& rs) { rs.Find("Thema LIKE '%ä%'", 1); },
        [](Recordset& rs) { rs.Find("Thema LIKE 'zz%'"); },
        [](Recordset& rs) { rs.Filter("Wert > 0 OR Tag >= #02/01/24#"); },
        [](Recordset& rs) { rs.Sort("Wert DESC, Id"); },
        [](Recordset& rs) { rs.MoveLast(); },
        [](Recordset& rs) { rs.Filter(""); },
    };
    for (std::size_t i = 0; i < actions.size(); ++i) {
        actions[i](whole);
        actions[i](late);
        ASSERT_EQ(picture(late), picture(whole)) << "step " << i;
    }
}

TEST_P(RecordsetOnEngine, TellsWhatOccursAmongTheRowsOfACondition)
{
    fillRandomly(400);
    Recordset rs = openRs("SELECT * FROM Tafel ORDER BY Titel DESC", LockType::ReadOnly, 10);
    rs.Filter("Nr = 1");
    rs.MoveNext();
    const std::string before = picture(rs);
    for (int i = 0; i < 60; ++i) {
        const reference::Condition condition = random_.condition(2);
        std::map<std::string, std::string>
            texts; // By sortKey; the spelling stored first stays, but for blanks behind it.
        std::set<double> numbers;
        for (const reference::Row& row : rows_) {
            if (condition.meets(row) != reference::Verdict(true))
                continue;
            if (const std::string text = asText(row[1]); !isNull(row[1]) && text != "a") {
                std::string& shown = texts.try_emplace(sortKey(text), text).first->second;
                if (shown.ends_with(' ') && !text.ends_with(' '))
                    shown = text;
            }
            if (!isNull(row[3]))
                numbers.insert(asNumber(row[3]));
        }
        std::vector<std::string> expected;
        for (const auto& [key, text] : texts)
            expected.push_back(text);
        const auto chosen = choose(rs, condition.asSql);
        ASSERT_TRUE(chosen);
        std::vector<std::string> found =
            distinctTexts(rs, "Thema", *chosen, [](std::string_view text) { return text != "a"; });
        if (isOdbc()) { // Which spelling was stored first is not known.
            std::ranges::transform(found, found.begin(), sortKey);
            std::ranges::transform(expected, expected.begin(), sortKey);
        }
        EXPECT_EQ(found, expected) << condition.asSql;
        EXPECT_THAT(distinctNumbers(rs, "Wert", *chosen), testing::ElementsAreArray(numbers)) << condition.asSql;
    }
    EXPECT_EQ(picture(rs), before);
    EXPECT_EQ(faultNumber([&] { distinctNumbers(rs, "Thema", {}); }), 3421);
    EXPECT_EQ(faultNumber([&] { distinctTexts(rs, "Wert", {}); }), 3421);
}

TEST_P(RecordsetWithRowKeys, GivingUpLeavesRowsPlaceAndColumnsAsTheyWere)
{
    fillRandomly(50);
    Recordset rs = openRs("SELECT * FROM Tafel ORDER BY Titel", LockType::ReadOnly, 10);
    rs.setPosition(7);
    const auto never = [](std::size_t, std::size_t) { return false; };
    EXPECT_FALSE(rs.Find("Thema LIKE '%a%'", 0, SearchDirection::Forward, true, never));
    EXPECT_FALSE(loadColumns(rs, std::vector<std::string>{"Titel", "Thema", "Nr"}, never));
    EXPECT_FALSE(choose(rs, "Thema = 'a'", never));
    EXPECT_FALSE(columnLoaded(rs, "Thema") || columnLoaded(rs, "Nr"));
    EXPECT_EQ(rs.absolutePosition(), 7u);
    EXPECT_TRUE(loadColumns(rs, std::vector<std::string>{"Titel", "Thema", "Nr"}));
    EXPECT_TRUE(columnLoaded(rs, "Thema") && columnLoaded(rs, "Nr"));
}

TEST_P(RecordsetOnEngine, WalksThroughUnreadRowsInBothDirections)
{
    fillRandomly(300);
    Recordset whole = openRs("SELECT * FROM Tafel ORDER BY Titel, Nr DESC");
    Recordset late = openRs("SELECT * FROM Tafel ORDER BY Titel, Nr DESC", LockType::ReadOnly, 10);
    std::vector<std::int64_t> there;
    for (; !late.eof(); late.MoveNext()) {
        const auto number = static_cast<std::size_t>(asInteger(late.field("Id")));
        there.push_back(static_cast<std::int64_t>(number));
        for (std::size_t field = 0; field < FIELDS.size(); ++field)
            ASSERT_EQ(late.field(FIELDS[field].name), rows_[number][field]);
    }
    std::vector<std::int64_t> back;
    for (late.MoveLast(); !late.bof(); late.movePrevious())
        back.push_back(asInteger(late.field("Id")));
    std::reverse(back.begin(), back.end());
    EXPECT_EQ(there, back);
    EXPECT_EQ(there.size(), whole.RecordCount());
}

// A filter, a condition of the engine, and the condition's meaning told row by row.
TEST_P(RecordsetOnEngine, FiltersKeepTheRowsThatMeetTheConditionAsTheEngineDoes)
{
    fillRandomly(400);
    Recordset rs = openRs("SELECT * FROM Tafel ORDER BY Id", LockType::ReadOnly, 10);
    std::size_t hits = 0;
    for (int i = 0; i < 400; ++i) {
        random_.filterPatterns = i % 2 == 0;
        const auto condition = random_.condition(3);
        std::vector<std::string> expected;
        for (std::size_t id = 0; id < rows_.size(); ++id)
            if (condition.meets(rows_[id]) == reference::Verdict(true))
                expected.push_back(std::to_string(id));
        if (random_.filterPatterns) {
            rs.Filter(condition.asFilter);
            ASSERT_EQ(column(rs, "Id"), expected) << condition.asFilter;
        }
        ASSERT_EQ(column(openRs("SELECT Id FROM Tafel WHERE " + condition.asSql + " ORDER BY Id"), "Id"), expected)
            << condition.asSql;
        hits += expected.size();
    }
    EXPECT_GT(hits, 1000u);
}

TEST_P(RecordsetWithRowKeys, EditsReachExactlyOneOfEqualRows)
{
    fill({{"Wort", FieldType::Text}, {"Nr", FieldType::Integer}}, {{"a", 1}, {"a", 1}, {"a", 1}, {"b", 2}});
    Recordset rs = openRs("SELECT * FROM Tafel WHERE Wort = 'a'", LockType::Optimistic);
    rs.MoveNext();
    rs.setField("Nr", "7");
    rs.Update();
    EXPECT_THAT(read("SELECT Wort, Nr FROM Tafel ORDER BY Wort, Nr"), ElementsAre("a|1", "a|1", "a|7", "b|2"));
    rs.MoveFirst();
    rs.Delete();
    EXPECT_EQ(rs.Text("Nr"), "7");
    EXPECT_THAT(read("SELECT Wort, Nr FROM Tafel ORDER BY Wort, Nr"), ElementsAre("a|1", "a|7", "b|2"));
    rs.AddNew();
    rs.setField("Wort", "c");
    rs.Update();
    rs.setField("Nr", 9);
    rs.Update();
    EXPECT_THAT(read("SELECT Wort, Nr FROM Tafel WHERE Wort = 'c'"), ElementsAre("c|9"));
    EXPECT_THAT(column(rs, "Nr"), ElementsAre("7", "1", "9"));
}

TEST_P(RecordsetOnEngine, AWritableDistinctHoldsTheFirstOfEqualRowsAndWritesOnlyIt)
{
    fill({{"Wort", FieldType::Text}, {"Nr", FieldType::Integer}},
         {{"a", 1}, {"A ", 1}, {"ä", 1}, {Value{}, 1}, {"", 1}, {Value{}, 1}, {"b", 1}, {"B", 2}});
    for (const auto lock : {LockType::ReadOnly, LockType::Optimistic}) {
        Recordset rs = openRs("SELECT DISTINCT * FROM Tafel WHERE Nr = 1 ORDER BY Wort", lock);
        EXPECT_THAT(rs.RecordCount(), 5u);
    }
    Recordset rs = openRs("SELECT DISTINCT * FROM Tafel WHERE Wort = 'a'", LockType::Optimistic);
    ASSERT_EQ(rs.RecordCount(), 1u);
    rs.setField("Nr", 5);
    rs.Update();
    EXPECT_THAT(read("SELECT Wort, Nr FROM Tafel WHERE Wort = 'a' ORDER BY Nr"), ElementsAre("A |1", "a|5"));
    rs.Delete();
    EXPECT_THAT(read("SELECT Wort, Nr FROM Tafel WHERE Wort = 'a'"), ElementsAre("A |1"));
}

TEST_P(RecordsetOnEngine, DistinctListsAreBlindToCaseAndSorted)
{
    fillWords({"b", "Ärger", "B ", "a", "arg", "A", Value{}, "ß", "ss"});
    EXPECT_THAT(
        column(openRs("SELECT DISTINCT Wort FROM Tafel WHERE Wort NOT LIKE '' ORDER BY Wort DESC"), "Wort"),
        ElementsAre(testing::AnyOf("ß", "ss"), testing::AnyOf("b", "B "), "Ärger", "arg", testing::AnyOf("a", "A")));
}

TEST_P(RecordsetWithRowKeys, RowsThatVanishedReadAsEmpty)
{
    fillRandomly(50);
    Recordset rs = openRs("SELECT * FROM Tafel ORDER BY Id", LockType::Optimistic, 10);
    execute("DELETE FROM Tafel WHERE Id = 3");
    execute("INSERT INTO Tafel (Id, Thema) VALUES (99, 'neu')");
    EXPECT_EQ(rs.RecordCount(), 50u);
    rs.setPosition(3);
    EXPECT_TRUE(isNull(rs.field("Thema")));
    EXPECT_TRUE(isNull(rs.cell(3, "Titel")));
    rs.Filter("Thema = 'neu'");
    EXPECT_TRUE(rs.empty());
    rs.Filter("Thema Is Null AND Titel Is Null AND Nr Is Null AND Wert Is Null AND Tag Is Null AND Id = 3");
    EXPECT_EQ(rs.RecordCount(), 1u);
    rs.setField("Thema", "x");
    EXPECT_EQ(faultNumber([&] { rs.Update(); }), -2147217864);
    EXPECT_TRUE(isNull(rs.field("Thema")));
    rs.Delete(); // What was wanted is so already.
    rs.Filter("");
    EXPECT_EQ(rs.RecordCount(), 49u);
}

TEST_P(RecordsetOnEngine, OwnChangesStayVisibleWhenTheyNoLongerMeetItsCondition)
{
    fillRandomly(50);
    Recordset rs = openRs("SELECT * FROM Tafel WHERE Id < 40 ORDER BY Id", LockType::Optimistic, 10);
    EXPECT_EQ(rs.field("Thema"), rs.cell(0, "Thema")); // Both are read ahead now.
    rs.setField("Id", 70);
    rs.setField("Thema", "umgezogen");
    rs.AddNew();
    rs.setField("Id", 71);
    rs.setField("Thema", "zugezogen");
    rs.Update();
    EXPECT_EQ(rs.Text("Thema"), "zugezogen");
    EXPECT_EQ(rs.cell(0, "Thema"), Value(std::string("umgezogen")));
    rs.Filter("Thema LIKE '*gezogen'");
    EXPECT_THAT(column(rs, "Id"), ElementsAre("70", "71"));
}

TEST_P(RecordsetOnEngine, ABatchIsWrittenAtOnceOrNotAtAll)
{
    fill({{"Wort", FieldType::Text}, {"Nr", FieldType::Integer}}, {{"a", 1}, {"b", 2}, {"c", 3}});
    Recordset rs = openRs("SELECT * FROM Tafel ORDER BY Wort", LockType::Batch);
    rs.Delete();
    rs.setField("Nr", 20);
    rs.AddNew();
    rs.setField("Wort", "d");
    rs.Update();
    rs.setField("Nr", 4);
    rs.Update();
    EXPECT_THAT(column(rs, "Nr"), ElementsAre("20", "3", "4"));
    EXPECT_THAT(read("SELECT Wort, Nr FROM Tafel ORDER BY Wort"), ElementsAre("a|1", "b|2", "c|3"));
    rs.UpdateBatch();
    EXPECT_THAT(read("SELECT Wort, Nr FROM Tafel ORDER BY Wort"), ElementsAre("b|20", "c|3", "d|4"));

    rs.MoveFirst();
    rs.Delete();
    rs.setField("Nr", 30);
    execute("DELETE FROM Tafel WHERE Wort = 'c'");
    EXPECT_EQ(faultNumber([&] { rs.UpdateBatch(); }), -2147217864);
    EXPECT_THAT(read("SELECT Wort, Nr FROM Tafel ORDER BY Wort"), ElementsAre("b|20", "d|4"));
    EXPECT_THAT(column(openRs("SELECT * FROM Tafel ORDER BY Wort"), "Nr"), ElementsAre("20", "4"));
}

TEST_P(RecordsetOnEngine, WhatIsOpenedToReadCannotBeWritten)
{
    fillWords({"a"});
    Recordset rs = openRs("SELECT * FROM Tafel");
    EXPECT_EQ(faultNumber([&] { rs.AddNew(); }), 3251);
    EXPECT_EQ(faultNumber([&] { rs.Delete(); }), 3251);
    EXPECT_EQ(faultNumber([&] { rs.setField("Wort", "b"); }), 3251);
    EXPECT_EQ(faultNumber([&] { rs.UpdateBatch(); }), 3251);
    EXPECT_EQ(faultNumber([&] { Recordset().Open("DELETE FROM Tafel", connection_); }), 3001);
    EXPECT_NE(faultNumber([&] { openRs("SELECT * FROM Gibtsnicht"); }), 0);
}

TEST_P(RecordsetWithRowKeys, LongReadingCanBeGivenUp)
{
    fillRandomly(50);
    Recordset rs = openRs("SELECT * FROM Tafel ORDER BY Titel", LockType::ReadOnly, 10);
    rs.Filter("Nr = 1");
    const auto before = column(rs, "Id");
    rs.Filter("Thema LIKE '*'", [](std::size_t, std::size_t) { return false; });
    EXPECT_EQ(rs.filter().text, "Nr = 1");
    EXPECT_EQ(column(rs, "Id"), before);
    EXPECT_FALSE(columnLoaded(rs, "Thema"));
    std::size_t inAll = 0;
    rs.Filter("Thema LIKE '*'", [&](std::size_t, std::size_t rows) { return inAll = rows, true; });
    EXPECT_EQ(inAll, 50u);
    EXPECT_TRUE(columnLoaded(rs, "Thema"));
}

} // namespace
