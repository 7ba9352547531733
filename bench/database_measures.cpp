#include "bench/database_measures.h"

#include "bench/bare_sqlite.h"
#include "database/connection.h"
#include "database/recordset.h"
#include "database/recordset_columns.h"
#include "database/sql/parser.h"

#include <stdexcept>

namespace quelvarn::bench {

namespace {

using NamesAndExpressions = std::vector<std::pair<std::string, std::string>>;

constexpr const char* LIST = "SELECT * FROM PartTabelle ORDER BY DokuBez, RevBez DESC";

void require(bool condition, const char* otherwise)
{
    if (!condition)
        throw std::runtime_error(otherwise);
}

// The peer walks the same rows in the same order.
std::size_t measureOpen(Measurements& series, const std::string& name, const std::string& section,
                        Connection& connection, BareSqlite& sqlite)
{
    const std::string rest = " FROM PartTabelle" + section + " ORDER BY DokuBez, RevBez DESC";
    const std::string bare = "SELECT rowid, DokuBez, RevBez" + rest;
    require(sqlite.plan(bare).find("TEMP B-TREE") == std::string::npos, "no index serves the peer's listing");
    Recordset rs;
    std::size_t listed = 0;
    series.compare(name, series.atMany(1.5),
                   {[&] { rs.Open(std::get<sql::Select>(sql::parseStatement("SELECT *" + rest)), connection); },
                    [&] { rs.Close(); }},
                   "sqlite3_step, same order", {[&] { listed = sqlite.listAll(bare); }});
    require(rs.RecordCount() == listed, "the recordset and the peer list different rows");
    return memoryNeed(rs) / rs.RecordCount();
}

void measureFirstFilter(Measurements& series, Connection& connection, BareSqlite& sqlite, const std::string& column,
                        const std::string& text)
{
    Recordset rs;
    std::int64_t counted = 0;
    const std::string count = "SELECT COUNT(*) FROM PartTabelle WHERE " + column + " LIKE '%" + text + "%'";
    series.compare("filter on a column not yet read, " + column, series.atMany(2.0),
                   {[&] { rs.Filter(column + " Like '*" + text + "*'"); }, [&] { rs.Open(LIST, connection); }},
                   "SELECT COUNT(*) ... LIKE", {[&] { counted = sqlite.number(count); }});
    require(static_cast<std::int64_t>(rs.RecordCount()) == counted, "filter and peer count different rows");
}

void measureFilter(Measurements& series, Recordset& rs)
{
    const NamesAndExpressions filter{
        {"filter once read, one text", "Titel Like 'Welle lang 3'"},
        {"filter once read, text anywhere", "Titel Like '*gefräst*'"},
        {"filter once read, three conditions",
         "Status >= 2 AND Material = 's235jr' AND Erstellt >= #01/02/15 00:00:00#"},
        {"filter once read, all texts different", "filename Like '*0012*'"},
    };
    for (const auto& [name, expression] : filter) {
        rs.Filter(expression);
        require(rs.RecordCount() > 0, "a filter of the bench finds nothing");
        series.limit(name, 10, {[&rs, &expression = expression] { rs.Filter(expression); }});
    }
    rs.Filter("");
}

void measureSearch(Measurements& series, Recordset& rs)
{
    rs.MoveLast();
    const std::string last = rs.Text("DokuBez");
    const NamesAndExpressions search{
        {"search step, start of text, first row", "DokuBez LIKE '1%'"},
        {"search step, start of text, last row", "DokuBez LIKE '" + last + "%'"},
        {"search step, start of text, not there", "DokuBez LIKE 'xyz%'"},
        {"search step, anywhere, last row", "DokuBez LIKE '%" + last.substr(1) + "%'"},
        {"search step, anywhere, not there", "DokuBez LIKE '%9-9-9%'"},
    };
    for (const auto& [name, criterion] : search)
        series.limit(name, 16,
                     {[&rs, &criterion = criterion] { rs.Find(criterion, 0, SearchDirection::Forward, true); }});
}

// The first step over a column has more to do than those that follow.
void measureFirstSearch(Measurements& series, Connection& connection)
{
    Recordset rs;
    series.limit("search step, anywhere, first one of all", 16,
                 {[&] { rs.Find("DokuBez LIKE '%9-9-9%'", 0, SearchDirection::Forward, true); },
                  [&] { rs.Open(LIST, connection); }});
}

void measureRowChange(Measurements& series, Recordset& rs)
{
    std::size_t position = 0;
    std::size_t length = 0;
    series.limit("row change: move and read all fields", 5, {[&] {
                     position = (position + 314'159) % rs.RecordCount();
                     rs.setPosition(position);
                     for (const ColumnInfo& field : rs.fields())
                         length += rs.Text(field.name).size();
                 }});
    require(length > 0, "the rows are empty");
}

} // namespace

void measureDatabase(Measurements& series, const std::filesystem::path& file)
{
    Connection connection;
    connection.Open(file);
    BareSqlite sqlite(file);
    const std::size_t bytes = measureOpen(series, "open a table", "", connection, sqlite);
    series.limitSize("memory a document after opening", "bytes", 150, static_cast<double>(bytes));
    measureOpen(series, "open a table, two statuses", " WHERE ( Status = 3 OR Status = 4)", connection, sqlite);
    measureFirstFilter(series, connection, sqlite, "Titel", "Welle");
    measureFirstFilter(series, connection, sqlite, "Dateiname", "0012");
    measureFirstSearch(series, connection);
    Recordset rs;
    rs.Open(LIST, connection);
    measureRowChange(series, rs);
    measureSearch(series, rs);
    measureFilter(series, rs);
}

} // namespace quelvarn::bench
