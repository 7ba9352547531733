#include "bench/value_list_measures.h"

#include "bench/bare_sqlite.h"
#include "database/connection.h"
#include "database/recordset.h"
#include "database/recordset_columns.h"
#include "database/recordset_lists.h"

#include <fmt/format.h>
#include <stdexcept>

namespace quelvarn::bench {

namespace {

constexpr int RUNS_UNREAD = 3;
constexpr const char* LIST = "SELECT * FROM PartTabelle ORDER BY DokuBez, RevBez DESC";
const std::vector<std::string> COLUMNS{"Projekt",    "Titel",        "Thema",          "Firma",
                                       "Kategorie",  "Material",     "Autor",          "Manager",
                                       "Bearbeiter", "Stichwoerter", "Hauptmerkmal_A", "Hauptmerkmal_B"};

void require(bool condition, const char* otherwise)
{
    if (!condition)
        throw std::runtime_error(otherwise);
}

std::size_t countLists(Recordset& rs, const std::string& condition)
{
    loadColumns(rs, COLUMNS);
    const auto rows = choose(rs, condition);
    std::size_t values = 0;
    for (const std::string& column : COLUMNS)
        values += distinctTexts(rs, column, *rows, [](std::string_view text) { return !text.empty(); }).size();
    return values;
}

std::size_t countDistinct(BareSqlite& sqlite, const std::string& column, const std::string& condition)
{
    return static_cast<std::size_t>(sqlite.number(fmt::format(
        "SELECT COUNT(*) FROM (SELECT DISTINCT {0} FROM PartTabelle WHERE {1}{0} NOT LIKE '')", column, condition)));
}

std::size_t countLists(BareSqlite& sqlite)
{
    std::size_t values = 0;
    for (const std::string& column : COLUMNS)
        values += countDistinct(sqlite, column, "");
    return values;
}

void measureTwelveLists(Measurements& series, Connection& connection, BareSqlite& sqlite)
{
    Recordset rs;
    std::size_t ours = 0;
    std::size_t other = 0;
    const Work peer{[&] { other = countLists(sqlite); }, [] {}, RUNS_UNREAD};
    const Work unread{[&] { ours = countLists(rs, ""); }, [&] { rs.Open(LIST, connection); }, RUNS_UNREAD};
    series.limit("twelve lists, no column read", 2000, unread);
    series.compare("twelve lists, no column read", std::nullopt, unread, "12 SELECT DISTINCT", peer);
    require(ours > 0 && ours == other, "the lists and the peer hold different values");
    series.limit("twelve lists, columns read", 100, {[&] { countLists(rs, ""); }});
    series.limit("twelve lists, columns read, under a filter", 100,
                 {[&] { countLists(rs, "Titel LIKE 'Welle%' AND ( Status >= 1  AND Status <= 3)"); }});
}

void measureTree(Measurements& series, Connection& connection, BareSqlite& sqlite)
{
    const std::string branch = "Hauptmerkmal_C = 'Welle 1'";
    const std::vector<std::string> features{"Hauptmerkmal_C", "Hauptmerkmal_D", "Hauptmerkmal_E", "Hauptmerkmal_F",
                                            "Hauptmerkmal_G", "Material",       "Firma"};
    Recordset rs;
    std::size_t ours = 0;
    std::size_t other = 0;
    const auto level = [&](const std::string& column, const std::string& condition) {
        const auto rows = choose(rs, condition);
        ours = distinctTexts(rs, column, *rows, [](std::string_view text) { return !text.empty(); }).size();
    };
    series.limit("first level of the tree, no column read", 1000,
                 {[&] { level("Hauptmerkmal_C", ""); }, [&] { rs.Open(LIST, connection); }, RUNS_UNREAD});
    series.limit("reading the columns of the tree", 1500,
                 {[&] { loadColumns(rs, features); }, [&] { rs.Open(LIST, connection); }, RUNS_UNREAD});
    series.limit("first level of the tree", 30, {[&] { level("Hauptmerkmal_C", ""); }});
    series.compare("second level of the tree", std::nullopt, {[&] { level("Hauptmerkmal_D", branch); }},
                   "SELECT DISTINCT, by the index",
                   {[&] { other = countDistinct(sqlite, "Hauptmerkmal_D", branch + " AND "); }});
    require(ours > 0 && ours == other, "the level and the peer hold different values");
    series.limit("second level of the tree", 30, {[&] { level("Hauptmerkmal_D", branch); }});
}

// Where every text differs, and nothing is found: the worst a key press can meet.
void measureKeyPress(Measurements& series, Connection& connection, BareSqlite& sqlite)
{
    Recordset rs;
    rs.Open(LIST, connection);
    const auto search = [&](const std::string& criterion) {
        return [&rs, criterion] { rs.Find(criterion, 0, SearchDirection::Forward, true); };
    };
    const std::pair<const char*, std::string> searches[]{
        {"key press, Titel, start, not there", "Titel LIKE 'xyz%'"},
        {"key press, Titel, anywhere, not there", "Titel LIKE '%xyz%'"},
        {"key press, filename, start, there", "filename LIKE 'W:%'"},
        {"key press, filename, start, not there", "filename LIKE 'xyz%'"},
        {"key press, filename, anywhere, there", "filename LIKE '%konstruktion%'"},
        {"key press, filename, anywhere, not there", "filename LIKE '%9-9-9%'"},
        {"key press, filename, other pattern, not there", "filename LIKE '%9-_-9%'"},
    };
    for (const auto& [name, criterion] : searches) {
        rs.Find(criterion);
        series.limit(name, 16, {search(criterion)});
    }
    require(rs.eof(), "what is not there was found");
    series.compare("key press, filename, anywhere, not there", std::nullopt, {search("filename LIKE '%9-9-9%'")},
                   "SELECT ... LIKE",
                   {[&] {
                        require(sqlite.listAll("SELECT rowid FROM PartTabelle WHERE filename LIKE '%9-9-9%'") == 0,
                                "the peer finds what is not there");
                    },
                    [] {}, RUNS_UNREAD});
}

} // namespace

void measureLists(Measurements& series, const std::filesystem::path& file)
{
    Connection connection;
    connection.Open(file);
    BareSqlite sqlite(file);
    measureTwelveLists(series, connection, sqlite);
    BareSqlite plain(preparePlainCopy(file));
    measureTree(series, connection, plain);
    measureKeyPress(series, connection, sqlite);
}

} // namespace quelvarn::bench
