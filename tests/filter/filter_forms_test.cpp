// A filter stands in the table's recordset as conditions and in queries as what its text says. Over generated rows all
// forms must mean the same on every engine, and what a person chose: the star is a wildcard, all else means itself.
#include "base/collation.h"
#include "base/file_path.h"
#include "base/utf8.h"
#include "database/connection.h"
#include "database/engine_fixture.h"
#include "database/new_database.h"
#include "database/recordset_columns.h"
#include "database/sql/conditions.h"
#include "filter/filter_run.h"
#include "filter/status_filter.h"
#include "filter/user_defined_match.h"

#include <array>
#include <iterator>
#include <random>
#include <string>

namespace quelvarn {
namespace {

class Dice
{
public:
    explicit Dice(unsigned seed) : source_(seed) {}
    std::size_t below(std::size_t limit) { return source_() % limit; }
    template <class List> const auto& out(const List& list) { return list[below(std::size(list))]; }

    std::string value()
    {
        // clang-format off
        static constexpr const char* PIECES[]{
            "a",  "A", "ä", "ß", "ss", " ", "1", "é", "-", "'", "''", "'''", "' AND ", "' OR '", " And Titel Like '",
            "%", "_", "\\", "[", "]", "[1]", "[!a]", "[a-c]", "[]", "!", "?", "#", "#01/02/26#", "\"", "(", "')", ",",
            " ORDER BY ", ";", "Null"};
        // clang-format on
        std::string text;
        for (std::size_t n = below(5); n > 0; --n)
            text += out(PIECES);
        return text;
    }
    // Of a value that is there, so that some rows are met: as it stands, or with stars in place of its pieces.
    std::string pattern(std::string text)
    {
        for (std::size_t n = below(3); n > 0; --n) {
            const std::size_t position = below(text.size() + 1);
            text = position > 0 && (position == text.size() || (text[position] & 0xC0) != 0x80)
                       ? text.substr(0, position) + "*" + (below(2) ? text.substr(position) : "")
                       : "*" + text;
        }
        return text;
    }
    DateTime time()
    {
        static constexpr int HOURS[]{0, 12, 23};
        const int hour = out(HOURS);
        return DateTime::from({2026, 1 + static_cast<int>(below(3)), 1 + static_cast<int>(below(3)), hour,
                               hour == 23 ? 59 : 0, hour == 23 ? 59 : 0});
    }

private:
    std::mt19937 source_;
};

constexpr const char* TEXT_FIELDS[]{"Projekt", "Autor", "Titel", "Hauptmerkmal_A"};

class FilterForms : public test::EngineTest
{
protected:
    void fillRegister(std::size_t documents)
    {
        createRegister(*engine_);
        std::vector<ColumnInfo> columns{{"DokuBez", FieldType::Text},
                                        {"Status", FieldType::Integer},
                                        {"Erstellt", FieldType::Date},
                                        {"Geaendert", FieldType::Date}};
        for (const char* field : TEXT_FIELDS)
            columns.push_back({field, FieldType::Text});
        const auto writer = engine_->bulkWriter("PartTabelle", columns);
        const auto orNull = [&](Value value) { return dice_.below(8) == 0 ? Value{} : value; };
        for (std::size_t i = 0; i < documents; ++i) {
            std::vector<Value> row{std::to_string(i), orNull(static_cast<std::int64_t>(dice_.below(6))),
                                   orNull(dice_.time()), orNull(dice_.time())};
            for (std::size_t n = 0; n < std::size(TEXT_FIELDS); ++n)
                row.push_back(orNull(dice_.value()));
            writer->row(row);
        }
        writer->end();
        connection_.openAddress(isPostgres() ? address_ : utf8FromPath(folder_ / "test.qv"));
        setWholeLimit(table_, 1);
        table_.Open("Select * From PartTabelle ORDER BY DokuBez", connection_);
    }

    FilterStep step(bool first)
    {
        switch (dice_.below(first ? 9 : 8)) {
        case 0:
            return {"Erstellt", formatDate(dice_.time()), CodeCreated + static_cast<int>(dice_.below(3)), {}};
        case 1:
            return {"Geaendert", formatDate(dice_.time()), CodeChanged + static_cast<int>(dice_.below(3)), {}};
        case 2:
            return {"Status", std::to_string(dice_.below(6)), CodeNumber, {}};
        case 8:
            return {"Dateiname", dice_.pattern(dice_.value()), CodeFileIfFilled, {}};
        default:
            return {dice_.out(TEXT_FIELDS), dice_.pattern(dice_.value()), CodeText, {}};
        }
    }

    std::string documents(RowFilter filter)
    {
        table_.Filter(std::move(filter));
        return names(table_);
    }
    // As every list and every order asks.
    std::string documentsOfQuery(std::string_view FilterString, std::string_view StatusFilter = "")
    {
        Recordset asked;
        asked.Open(sql::Query("PartTabelle")
                       .columns({"DokuBez"})
                       .where(sql::all(filterCondition(FilterString), sql::parseCondition(StatusFilter)))
                       .sortedBy("DokuBez"),
                   connection_);
        return names(asked);
    }
    static std::string names(const Recordset& rows)
    {
        std::string text;
        for (std::size_t i = 0; i < rows.RecordCount(); ++i)
            text += asText(rows.cell(i, "DokuBez")) + " ";
        return text;
    }

    Dice dice_{20};
    Connection connection_;
    Recordset table_;
};
INSTANTIATE_TEST_SUITE_P(, FilterForms, test::ownEngines, test::engineName);

// A star is told apart from everything that is tested: every length of a run is tried.
bool means(std::u32string_view pattern, std::u32string_view text)
{
    if (pattern.empty())
        return text.empty();
    if (pattern.front() == U'*')
        return means(pattern.substr(1), text) || (!text.empty() && means(pattern, text.substr(1)));
    return !text.empty() && pattern.front() == text.front() && means(pattern.substr(1), text.substr(1));
}

bool means(const std::string& pattern, const std::string& text)
{
    return equalText(pattern, text) ||
           (pattern.find('*') != std::string::npos && means(toUtf32(foldCase(pattern)), toUtf32(foldCase(text))));
}

TEST_P(FilterForms, FindTheSameRows)
{
    fillRegister(400);
    int withRows = 0;
    for (int i = 0; i < 600; ++i) {
        FilterState filter;
        TypeFilter& state = filter.types[0];
        state.FilterAnzahl = 1 + static_cast<int>(dice_.below(3));
        for (int n = 0; n < state.FilterAnzahl; ++n)
            state.FilterSchritte[static_cast<std::size_t>(n)] = step(n == 0);
        for (bool& tick : state.ChFilterStat)
            tick = dice_.below(2) != 0;
        BuildStatusFilter(filter, 0);

        const std::string& StatusFilter = filter.status.StatusFilter;
        const ChainLink link = formChain(state, stepFragment).back();
        const std::string filtered = documents(link.behind(filter.status));
        ASSERT_EQ(filtered, documentsOfQuery(link.sqlForm, StatusFilter)) << link.sqlForm;
        withRows += filtered.empty() ? 0 : 1;
    }
    EXPECT_GT(withRows, 100);
}

// Numbers as binary arithmetic leaves them, around bounds of four places.
TEST_P(FilterForms, MainValuesMeanTheSameInAQuery)
{
    fillRegister(0);
    const std::vector<ColumnInfo> columns{{"DokuBez", FieldType::Text}, {"Hauptwert_a", FieldType::FloatingPoint}};
    const auto writer = engine_->bulkWriter("PartTabelle", columns);
    for (int i = 0; i < 2000; ++i) {
        double number = static_cast<double>(dice_.below(20)) / 10;
        for (std::size_t n = dice_.below(4); n > 0; --n)
            number += dice_.below(2) ? 0.1 : -0.1;
        number += dice_.below(4) ? 0 : 0.0001 * (static_cast<double>(dice_.below(5)) - 2) / 2;
        writer->row(std::vector<Value>{std::to_string(i), number});
    }
    writer->end();
    table_.Open(sql::Query("PartTabelle").sortedBy("DokuBez"), connection_);
    for (std::int64_t from = 0; from < 20; ++from) {
        std::array<MainValueBand, MAIN_VALUE_COUNT> bounds{};
        bounds[0] = {Decimal::ofUnits(from * 1000), Decimal::ofUnits(from * 1000 + 2000)};
        std::string intended;
        for (std::size_t i = 0; i < table_.RecordCount(); ++i) {
            const auto value = Decimal::from(asNumber(table_.cell(i, "Hauptwert_a")));
            if (*value >= bounds[0].MinWert && *value <= bounds[0].MaxWert)
                intended += asText(table_.cell(i, "DokuBez")) + " ";
        }
        RowFilter filter{"Hauptwerte"};
        for (sql::ExpressionPointer& condition : mainValueConditions(bounds))
            filter.conditions.push_back(std::move(condition));
        EXPECT_EQ(documents(std::move(filter)), intended);
        Recordset asked;
        asked.Open(sql::Query("PartTabelle").where(sql::all(mainValueConditions(bounds))).sortedBy("DokuBez"),
                   connection_);
        EXPECT_EQ(names(asked), intended);
        table_.Filter("");
    }
}

// Each value of a list finds its rows, and a pattern those that it names, in every form: the filter of the table, its
// text, a query, and the filter for user-defined properties where the pattern ends with a star.
TEST_P(FilterForms, AValueMeansItselfAndTheStarAnyRun)
{
    fillRegister(0);
    std::vector<std::string> values{"20_50",    "20x50", "A[1]", "A1",       "Vorlage [NG6]", "O'Ring 5''", "O'Ring 5'",
                                    "O'Ring 5", "'",     "''",   "x' OR 'y", "100%",          "100 kg",     "a\\b",
                                    "[",        "]",     "4*6",  "4x6",      "!#?-",          "\"a\"",      " "};
    while (values.size() < 150)
        values.push_back(dice_.value());
    const std::vector<ColumnInfo> columns{{"DokuBez", FieldType::Text}, {"Titel", FieldType::Text}};
    const auto writer = engine_->bulkWriter("PartTabelle", columns);
    for (std::size_t i = 0; i < values.size(); ++i)
        writer->row(std::vector<Value>{std::to_string(i), values[i]});
    writer->end();
    table_.Open(sql::Query("PartTabelle").sortedBy("DokuBez"), connection_);
    std::vector<std::size_t> sequence;
    for (std::size_t i = 0; i < table_.RecordCount(); ++i)
        sequence.push_back(std::stoul(asText(table_.cell(i, "DokuBez"))));

    for (std::size_t i = 0; i < 2 * values.size(); ++i) {
        const std::string pattern = i < values.size() ? values[i] : dice_.pattern(values[i - values.size()]);
        if (pattern.empty())
            continue;
        TypeFilter state;
        state.FilterAnzahl = 1;
        state.FilterSchritte[0] = {"Titel", pattern, CodeText, {}};
        const ChainLink link = formChain(state, stepFragment).back();
        state.FilterSchritte[0] = {"", "Name", CodeText, pattern};
        const UserDefinedSteps userDefined(state);

        std::string intended, atUserDefined;
        for (const std::size_t n : sequence) {
            intended += means(pattern, values[n]) ? std::to_string(n) + " " : "";
            atUserDefined += userDefined.meets("Name", values[n]) ? std::to_string(n) + " " : "";
        }
        ASSERT_EQ(documents(link.behind({})), intended) << pattern;
        ASSERT_EQ(documentsOfQuery(link.sqlForm), intended) << link.sqlForm;
        if (pattern.ends_with('*')) {
            ASSERT_EQ(atUserDefined, intended) << pattern;
        }
    }
}

} // namespace
} // namespace quelvarn
