#include "base/date_time.h"
#include "tools/import/conversion.h"
#include "tools/import/table_mapping.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace quelvarn::tools {
namespace {

using namespace std::string_view_literals;

Cell cell(std::int64_t number)
{
    return {.kind = CellKind::Integer, .integer = number, .floatingPoint = 0, .text = {}};
}
Cell cell(double number, CellKind kind = CellKind::FloatingPoint)
{
    return {.kind = kind, .integer = 0, .floatingPoint = number, .text = {}};
}
Cell cell(std::string_view text)
{
    return {.kind = CellKind::Text, .integer = 0, .floatingPoint = 0, .text = text};
}

TEST(Conversion, KeepsWhatFitsAndNamesWhatDoesNot)
{
    const DateTime noon = DateTime::from({1899, 12, 29, 12, 0, 0});
    const struct
    {
        Cell cell;
        FieldType type;
        Value expected;
        std::string_view reason;
    } cases[] = {
        {{}, FieldType::Text, {}, ""},
        {cell(""sv), FieldType::Text, std::string(), ""}, // Not Null.
        {cell("a\0b"sv), FieldType::Text, std::string("ab"), ""},
        {cell(std::int64_t{-1}), FieldType::Integer, std::int64_t{-1}, ""},
        {cell(std::int64_t{3}), FieldType::FloatingPoint, 3.0, ""},
        {cell(std::int64_t{3}), FieldType::Text, std::string("3"), ""},
        {cell(3.0), FieldType::Integer, std::int64_t{3}, ""},
        {cell(3.5), FieldType::Integer, {}, "keine ganze Zahl"},
        {cell(3.5), FieldType::Text, std::string("3,5"), ""},
        {cell(std::nan("")), FieldType::FloatingPoint, {}, "keine Zahl"},
        {cell("1,5"sv), FieldType::FloatingPoint, 1.5, ""},
        {cell(" "sv), FieldType::FloatingPoint, {}, ""},
        {cell("drei"sv), FieldType::Integer, {}, "keine Zahl"},
        // The time of day counts forward on a day before the first one, too.
        {cell(-1.5, CellKind::Date), FieldType::Date, noon, ""},
        {cell(-1.5, CellKind::Date), FieldType::Text, std::string("29.12.1899 12:00:00"), ""},
        {cell(3e6, CellKind::Date), FieldType::Date, {}, "kein Datum von 100 bis 9999"},
        {cell(-std::numeric_limits<double>::infinity(), CellKind::Date),
         FieldType::Date,
         {},
         "kein Datum von 100 bis 9999"},
        {cell("29.12.1899 12:00"sv), FieldType::Date, noon, ""},
        {cell("morgen"sv), FieldType::Date, {}, "kein Datum von 100 bis 9999"},
    };
    for (const auto& testCase : cases) {
        std::string_view reason;
        EXPECT_EQ(asValue(testCase.cell, testCase.type, reason), testCase.expected)
            << testCase.cell.text << testCase.cell.floatingPoint;
        EXPECT_EQ(reason, testCase.reason) << testCase.cell.text << testCase.cell.floatingPoint;
    }
}

TEST(TableMapping, MatchesColumnsInAnyCaseAndKeepsTheOthers)
{
    const SourceTable source{"partTABELLE",
                             {{"ID", ColumnKind::Integer},
                              {"REVBEZ", ColumnKind::Text},
                              {"dokubez", ColumnKind::Text},
                              {"Gespeichert", ColumnKind::Text},
                              {"Bild", ColumnKind::Fremd}},
                             0};
    const TableMapping result = mapTable(source, *findTable("PartTabelle"));
    EXPECT_EQ(result.target.name, "PartTabelle");
    EXPECT_EQ(result.target.columns[0], (ColumnInfo{"DokuBez", FieldType::Text}));
    EXPECT_EQ(result.source[0], 2U);
    EXPECT_EQ(result.source[1], 1U);
    const auto saved = std::ranges::find(result.target.columns, "Gespeichert", &ColumnInfo::name);
    EXPECT_EQ(saved->type, FieldType::Text);
    EXPECT_EQ(result.target.columns.back(), (ColumnInfo{"ID", FieldType::Integer}));
    EXPECT_EQ(result.additional, std::vector<std::string>{"ID"});
    EXPECT_EQ(result.notTaken, std::vector<std::size_t>{4});
    EXPECT_NE(std::ranges::find(result.missing, "filename"), result.missing.end());
}

TEST(TableMapping, LeavesAnAddressTableItsShape)
{
    const SourceTable wide{
        "Adresstabelle",
        {{"Kennung", ColumnKind::Text}, {"Anrede E-Mail", ColumnKind::Text}, {"Zeichnung_Art1", ColumnKind::Text}},
        0};
    const std::vector<ColumnInfo> columns{
        {"Kennung", FieldType::Text}, {"Anrede E-Mail", FieldType::Text}, {"Zeichnung_Art1", FieldType::Text}};
    EXPECT_EQ(mapTable(wide, *findTable("Adresstabelle")).target.columns, columns);
}

TEST(Objection, NamesWhatMakesAFileNoRegister)
{
    const SourceTable ini{"INI",
                          {{"Feld1", ColumnKind::Text},
                           {"Feld2", ColumnKind::Text},
                           {"Feld3", ColumnKind::Text},
                           {"Feld4", ColumnKind::Text},
                           {"Feld5", ColumnKind::Text}},
                          0};
    const SourceTable parts{"PartTabelle",
                            {{"DokuBez", ColumnKind::Text},
                             {"RevBez", ColumnKind::Text},
                             {"filename", ColumnKind::Text},
                             {"Status", ColumnKind::Integer}},
                            0};
    EXPECT_EQ(findObjection({{ini, parts}, {}}), std::nullopt);
    EXPECT_TRUE(findObjection({{parts}, {}}));
    EXPECT_TRUE(findObjection({{ini}, {"Kunden"}}));
    EXPECT_TRUE(findObjection({{{"Ini", {{"Feld1", ColumnKind::Text}}, 0}, parts}, {}}));
}

} // namespace
} // namespace quelvarn::tools
