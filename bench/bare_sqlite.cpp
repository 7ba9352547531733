#include "bench/bare_sqlite.h"

#include <sqlite3.h>
#include <stdexcept>
#include <string_view>

namespace quelvarn::bench {

namespace {

// The register's text columns name a collation. The peer's statements read in the order of an index or not sorted at
// all, so that it only has to be there.
int compareBytes(void*, int left, const void* leftBytes, int right, const void* rightBytes)
{
    return std::string_view(static_cast<const char*>(leftBytes), static_cast<std::size_t>(left))
        .compare({static_cast<const char*>(rightBytes), static_cast<std::size_t>(right)});
}

void missingCollation(void*, sqlite3* database, int, const char* name)
{
    sqlite3_create_collation(database, name, SQLITE_UTF8, nullptr, compareBytes);
}

} // namespace

BareSqlite::BareSqlite(const std::filesystem::path& file)
{
    if (sqlite3_open_v2(file.string().c_str(), &database_, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
        throw std::runtime_error("cannot open " + file.string());
    sqlite3_collation_needed(database_, nullptr, missingCollation);
    sqlite3_exec(database_, "PRAGMA cache_size=-65536", nullptr, nullptr, nullptr);
}

BareSqlite::~BareSqlite()
{
    sqlite3_close(database_);
}

std::size_t BareSqlite::listAll(const std::string& sql)
{
    sqlite3_stmt* statement = prepare(sql);
    const int columns = sqlite3_column_count(statement);
    std::size_t rows = 0;
    std::size_t sum = 0; // Keeps the compiler from leaving the cells out.
    while (sqlite3_step(statement) == SQLITE_ROW) {
        ++rows;
        sum += static_cast<std::size_t>(sqlite3_column_int64(statement, 0));
        for (int column = 1; column < columns; ++column) {
            const unsigned char* text = sqlite3_column_text(statement, column);
            sum += text ? static_cast<std::size_t>(sqlite3_column_bytes(statement, column)) : 0;
        }
    }
    sqlite3_finalize(statement);
    return sum == 0 ? 0 : rows;
}

std::int64_t BareSqlite::number(const std::string& sql)
{
    sqlite3_stmt* statement = prepare(sql);
    const std::int64_t result = sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_int64(statement, 0) : 0;
    sqlite3_finalize(statement);
    return result;
}

std::string BareSqlite::plan(const std::string& sql)
{
    sqlite3_stmt* statement = prepare("EXPLAIN QUERY PLAN " + sql);
    std::string text;
    while (sqlite3_step(statement) == SQLITE_ROW)
        text += std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement, 3))) + "\n";
    sqlite3_finalize(statement);
    return text;
}

sqlite3_stmt* BareSqlite::prepare(const std::string& sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database_));
    return statement;
}

std::filesystem::path preparePlainCopy(const std::filesystem::path& file)
{
    return preparePlainCopy(file, "PartTabelle",
                            "CREATE INDEX Liste ON PartTabelle(DokuBez, RevBez DESC, Status);"
                            "CREATE INDEX Dateien ON PartTabelle(filename);"
                            "CREATE INDEX Stufen ON PartTabelle(Hauptmerkmal_C, Hauptmerkmal_D, "
                            "Hauptmerkmal_E);");
}

std::filesystem::path preparePlainCopy(const std::filesystem::path& file, const std::string& table,
                                       const std::string& indexes)
{
    const std::filesystem::path copy = file.string() + ".plain";
    const auto count = [&](const std::filesystem::path& wo) {
        return BareSqlite(wo).number("SELECT COUNT(*) FROM " + table);
    };
    if (std::filesystem::exists(copy) && count(copy) == count(file))
        return copy;
    std::filesystem::remove(copy);
    sqlite3* target = nullptr;
    sqlite3_open(copy.string().c_str(), &target);
    sqlite3_collation_needed(target, nullptr, missingCollation);
    const std::string sql = "PRAGMA synchronous=OFF; ATTACH '" + file.string() +
                            "' AS von;"
                            "CREATE TABLE " +
                            table + " AS SELECT * FROM von." + table + ";" + indexes;
    const int result = sqlite3_exec(target, sql.c_str(), nullptr, nullptr, nullptr);
    const std::string reason = sqlite3_errmsg(target);
    sqlite3_close(target);
    if (result != SQLITE_OK)
        throw std::runtime_error(copy.string() + ": " + reason);
    return copy;
}

} // namespace quelvarn::bench
