#include "base/collation.h"
#include "database/column.h"
#include "database/column_search.h"
#include "database/recordset_keys.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

using namespace quelvarn;
using testing::ElementsAre;

namespace {

// Enough texts for several blocks of judging, many of them without a single letter in common.
std::vector<std::string> manyTexts()
{
    // The Kelvin sign, the capital sharp s and the dotted capital I change their length when folded.
    const std::vector<std::string> pieces{"a", "B", "Ä",  "ß", "ẞ", "\u212A", "İ",
                                          "1", " ", "\t", "-", "é", "ab",     "Welle"};
    std::mt19937 source(3);
    std::vector<std::string> texts;
    for (int i = 0; i < 12000; ++i) {
        std::string text;
        for (std::size_t n = source() % 9; n > 0; --n)
            text += pieces[source() % pieces.size()];
        texts.push_back(text);
    }
    return texts;
}

std::vector<RowNumber> allRows(const Column& column)
{
    std::vector<RowNumber> rows(column.count());
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

template <class Check> std::vector<RowNumber> oneByOne(const std::vector<std::string>& texts, const Check& check)
{
    std::vector<RowNumber> rows;
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (check(texts[i]))
            rows.push_back(static_cast<RowNumber>(i));
    return rows;
}

TEST(ColumnSearch, FindsWhatLookingAtEachTextFinds)
{
    const auto texts = manyTexts();
    for (const auto search : {TextPool::Search::All, TextPool::Search::Neighbour}) {
        TextColumn column(search);
        for (const auto& text : texts)
            column.appendText(text);
        for (const auto* pattern : {"%", "", "a%", "%welle%", "%aA%", "Welle1", "ß%", "%k%", "%\u212A%", "i%", "%ẞ%",
                                    "%ä", "_b%", "%1_1%", "[a-c]%", "%b%b%", " %", "%\t%", "%xyz%"}) {
            const LikePattern single(pattern, Wildcards::Sql);
            for (const bool negated : {false, true}) {
                auto rows = allRows(column);
                likeHits(column, pattern, Wildcards::Sql, negated)->keep(rows);
                EXPECT_EQ(rows, oneByOne(texts, [&](const auto& text) { return single.matches(text) != negated; }))
                    << pattern;
            }
        }
        for (const auto* text : {"", "a", "AB ", "ss", "ẞ", "k", "a a", "é", "welle1", "1-"}) {
            auto rows = allRows(column);
            equalHits(column, text, false)->keep(rows);
            EXPECT_EQ(rows, oneByOne(texts, [&](const auto& cell) { return equalText(cell, text); })) << text;
        }
    }
}

TEST(ColumnSearch, TellsBeforehandThatNothingWillBeFound)
{
    TextColumn column(TextPool::Search::Neighbour); // So many texts that they are judged on two processors.
    const auto texts = manyTexts();
    for (int i = 0; i < 6; ++i)
        for (const auto& text : texts)
            column.appendText(text + static_cast<char>('0' + i));
    column.appendText("ganz hinten");
    for (const auto* pattern : {"%hinten", "%xyz%", "welle%5", "q%", "%\u212A%1", "%", "%a_z%"}) {
        const LikePattern single(pattern, Wildcards::Sql);
        std::vector<RowNumber> expected;
        for (const RowNumber row : allRows(column))
            if (single.matches(asText(column.value(row))))
                expected.push_back(row);
        const auto hits = likeHits(column, pattern, Wildcards::Sql, false);
        EXPECT_EQ(hits->nowhere(), expected.empty()) << pattern;
        auto rows = allRows(column);
        hits->keep(rows);
        EXPECT_EQ(rows, expected) << pattern;
    }
}

TEST(ColumnSearch, BytesAreFoundAtEveryPlaceAndAcrossEveryWindow)
{
    for (std::size_t length = 1; length < 300; length += 7) {
        for (std::size_t position = 0; position + 3 <= length; ++position) {
            std::string bytes(length, 'x');
            bytes.replace(position, 3, "abc");
            EXPECT_EQ(findBytes(bytes, "abc", 0), position);
            EXPECT_EQ(findBytes(bytes, "abc", position + 1), std::string::npos);
        }
        EXPECT_EQ(findBytes(std::string(length, 'a'), "ab", 0), std::string::npos);
    }
}

TEST(Column, KeepsTextsWhoseSearchNoLongerPays)
{
    TextColumn column;
    constexpr int COUNT = 150'000; // All different: on the way it stops looking for known texts.
    for (int i = 0; i < COUNT; ++i)
        column.appendText("Text " + std::to_string(i));
    for (int i = 0; i < COUNT; ++i)
        column.appendText("Text " + std::to_string(i % 10));
    column.commit();
    column.set(5, std::string("neu"));
    column.set(6, Value{});
    for (int i = 7; i < 2 * COUNT; i += 991)
        ASSERT_EQ(column.value(static_cast<RowNumber>(i)),
                  Value("Text " + std::to_string(i < COUNT ? i : (i - COUNT) % 10)));
    EXPECT_EQ(column.value(5), Value(std::string("neu")));
    EXPECT_TRUE(column.isNull(6));
}

TEST(Column, HoldsEachTextOnceWhenTheyRepeat)
{
    TextColumn column;
    for (int i = 0; i < 200'000; ++i)
        column.appendText("Werkstoff " + std::to_string(i % 500));
    EXPECT_EQ(column.texts().count(), 501u);
}

TEST(Column, NumberColumnsKeepCellsOfAnotherKind)
{
    const std::vector<std::pair<FieldType, std::vector<Value>>> cases{
        {FieldType::Integer, {std::int64_t{3}, std::string("drei"), Value{}, 2.5, std::int64_t{-1}}},
        {FieldType::FloatingPoint, {1.5, std::string("x"), Value{}, -0.25}},
        {FieldType::Date, {DateTime{86400}, std::string("gestern"), Value{}, DateTime{-5}, std::int64_t{7}}}};
    for (const auto& [type, values] : cases) {
        const auto column = newColumn(type);
        for (const Value& value : values)
            column->append(value);
        for (std::size_t i = 0; i < values.size(); ++i) {
            EXPECT_EQ(column->value(static_cast<RowNumber>(i)), values[i]);
            EXPECT_EQ(column->isNull(static_cast<RowNumber>(i)), isNull(values[i]));
        }
        column->set(1, values[0]);
        EXPECT_EQ(column->value(1), values[0]);
        column->set(1, Value{});
        EXPECT_TRUE(column->isNull(1));
    }
}

TEST(Rowkeys, FindTheirRowsWhetherCloseTogetherOrNot)
{
    const std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
    const std::int64_t greatest = std::numeric_limits<std::int64_t>::max();
    for (const std::vector<RowKey>& key :
         {std::vector<RowKey>{}, {5}, {3, 1, 2}, {-4, 7, 0}, {smallest, 0, greatest}, {1, 1'000'000'000, 17}}) {
        KeyMap map(key);
        for (std::size_t row = 0; row < key.size(); ++row)
            EXPECT_EQ(map.findRow(key[row]), static_cast<RowNumber>(row));
        for (const RowKey fremd : {std::int64_t{4}, std::int64_t{999}, greatest - 1, smallest + 1})
            EXPECT_EQ(map.findRow(fremd), std::nullopt);
    }
}

} // namespace
