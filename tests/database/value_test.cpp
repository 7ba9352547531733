#include "database/schema.h"
#include "database/value.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace quelvarn {
namespace {

const DateTime march = DateTime::from({2006, 3, 7, 13, 5, 0});

TEST(Value, ConvertsAsTheDatabaseDoes)
{
    struct TestCase
    {
        Value value;
        std::string text;
        double number;
        std::int64_t integer;
        bool numeric;
        DateTime date;
    };
    const TestCase cases[] = {
        {{}, "", 0, 0, false, {}},
        {std::int64_t{-7}, "-7", -7, -7, true, DateTime::fromDays(-7)},
        {2.5, "2,5", 2.5, 2, true, DateTime::fromDays(2.5)},
        {3.5, "3,5", 3.5, 4, true, DateTime::fromDays(3.5)},
        {1e300, "1E+300", 1e300, std::numeric_limits<std::int64_t>::max(), true, {}},
        {"", "", 0, 0, false, {}},
        {" 1.234,5 ", " 1.234,5 ", 1234.5, 1234, true, {}},
        {"Welle", "Welle", 0, 0, false, {}},
        {"07.03.06 13:05", "07.03.06 13:05", 0, 0, false, march},
        {"2006-03-07 13:05:00", "2006-03-07 13:05:00", 0, 0, false, march},
        {march, "07.03.2006 13:05:00", march.asDays(), 38784, false, march},
    };
    for (const TestCase& testCase : cases) {
        EXPECT_EQ(asText(testCase.value), testCase.text);
        EXPECT_DOUBLE_EQ(asNumber(testCase.value), testCase.number) << testCase.text;
        EXPECT_EQ(asInteger(testCase.value), testCase.integer) << testCase.text;
        EXPECT_EQ(isNumeric(testCase.value), testCase.numeric) << testCase.text;
        EXPECT_EQ(asDate(testCase.value), testCase.date) << testCase.text;
    }
}

TEST(RegisterSchema, EveryIndexNamesColumnsOfItsTable)
{
    for (const TableSchema& table : registerSchema())
        for (const auto& index : table.indexes)
            for (const IndexColumn& sought : index)
                EXPECT_TRUE(std::ranges::count(table.columns, sought.name, &ColumnInfo::name) == 1)
                    << table.name << "." << sought.name;
    EXPECT_EQ(findTable("drafttabelle")->columns.size(), findTable("PartTabelle")->columns.size() + 1);
    EXPECT_EQ(findTable("Fehlt"), nullptr);
}

} // namespace
} // namespace quelvarn
