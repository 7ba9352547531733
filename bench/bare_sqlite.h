#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace quelvarn::bench {

// A register's file through SQLite's own C interface, without this program: the peer.
class BareSqlite
{
public:
    explicit BareSqlite(const std::filesystem::path& file);
    ~BareSqlite();
    BareSqlite(const BareSqlite&) = delete;
    BareSqlite& operator=(const BareSqlite&) = delete;

    // Steps through all rows and takes each cell, the first one as a number. Rows seen.
    std::size_t listAll(const std::string& sql);
    std::int64_t number(const std::string& sql);
    // How SQLite runs the statement, in its own words.
    std::string plan(const std::string& sql);

private:
    sqlite3_stmt* prepare(const std::string& sql);

    sqlite3* database_ = nullptr;
};

// A copy of PartTabelle in a file beside the register, with the same indexes but no collation of the program's.
std::filesystem::path preparePlainCopy(const std::filesystem::path& file);
// The same of another table, with the statements that make its indexes.
std::filesystem::path preparePlainCopy(const std::filesystem::path& file, const std::string& table,
                                       const std::string& indexes);

} // namespace quelvarn::bench
