#pragma once

#include "database/create.h"
#include "database/engine.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#if __has_include(<sqlite3.h>)
#include "database/sqlite/functions.h"

#include <sqlite3.h>
#endif

namespace quelvarn::test {

// The ODBC engine over other drivers than that of Access, which only Windows has. What differs there, and why:
// - Row keys: a row is known by what it holds. Keys are not counted up from 1, and of rows that are equal throughout
//   none can be written.
// - Columns are not read later: a recordset is read whole when it opens.
// - Indexes belong to the maker of the file: none are made, none are missed.
// - DISTINCT over PostgreSQL shows any spelling of texts that differ in case alone.
// - Which spelling of equal texts was stored first is not known: the keys follow the order of reading.
// - SQLite's driver hands doubles out with 15 digits, and takes the write lock late: no test of many writers.
inline constexpr std::string_view ODBC_TREIBER_SQLITE = "SQLite3";
inline constexpr std::string_view ODBC_TREIBER_POSTGRES = "PostgreSQL Unicode";
inline constexpr std::string_view ODBC_TREIBER_MDB = "MDBTools";

// Whether odbcinst.ini lists the driver, and the program was built with ODBC.
inline bool hatOdbcTreiber(std::string_view name)
{
#ifdef QUELVARN_NO_ODBC
    return false;
#endif
    std::ifstream liste("/etc/odbcinst.ini");
    for (std::string zeile; std::getline(liste, zeile);)
        if (zeile == "[" + std::string(name) + "]")
            return true;
    return false;
}

#if __has_include(<sqlite3.h>)
inline int richteSqliteEin(sqlite3* datenbank, char**, const void*)
{
    sqlite::registriereFunktionen(datenbank);
    return SQLITE_OK;
}
#endif

// Why the tests over this driver cannot run, or "". The driver knows neither the order of our texts in SQLite nor the
// functions that a PostgreSQL database of ours has: here they get both.
inline std::string bereiteOdbcVor(bool postgres, const std::string& adresse)
{
    if (!hatOdbcTreiber(postgres ? ODBC_TREIBER_POSTGRES : ODBC_TREIBER_SQLITE))
        return "the ODBC driver of this database is not installed";
    if (postgres) {
        const auto engine = oeffnePostgres(adresse);
        engine->legeTabelleAn({"Anlass", {{"x"}}, {}});
        engine->entferneTabelle("Anlass");
        return {};
    }
#if __has_include(<sqlite3.h>)
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(richteSqliteEin)); // Once, however often it is called.
    return {};
#else
    return "the library of SQLite is not installed";
#endif
}

inline std::string odbcText(const std::filesystem::path& sqliteDatei)
{
    return "DRIVER={" + std::string(ODBC_TREIBER_SQLITE) + "};Database=" + sqliteDatei.string() + ";Timeout=60000";
}

// From the address that PostgresCluster gives.
inline std::string odbcText(const std::string& adresse)
{
    const auto zwischen = [&](std::string_view vor, std::string_view nach) {
        const std::size_t anfang = adresse.find(vor) + vor.size();
        return adresse.substr(anfang, adresse.find(nach, anfang) - anfang);
    };
    return "DRIVER={" + std::string(ODBC_TREIBER_POSTGRES) + "};Servername=" + zwischen("host=", "&") +
           ";Database=" + zwischen("postgresql:///", "?") + ";Uid=quelvarn";
}

} // namespace quelvarn::test
