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
    explicit BareSqlite(const std::filesystem::path& datei);
    ~BareSqlite();
    BareSqlite(const BareSqlite&) = delete;
    BareSqlite& operator=(const BareSqlite&) = delete;

    // Steps through all rows and takes each cell, the first one as a number. Rows seen.
    std::size_t listeAuf(const std::string& sql);
    std::int64_t zahl(const std::string& sql);
    // How SQLite runs the statement, in its own words.
    std::string plan(const std::string& sql);

private:
    sqlite3_stmt* bereite(const std::string& sql);

    sqlite3* datenbank_ = nullptr;
};

// A copy of PartTabelle in a file beside the register, with the same indexes but no collation of the program's.
std::filesystem::path legeSchlichteKopieBereit(const std::filesystem::path& datei);
// The same of another table, with the statements that make its indexes.
std::filesystem::path legeSchlichteKopieBereit(const std::filesystem::path& datei, const std::string& tabelle,
                                               const std::string& indexe);

} // namespace quelvarn::bench
