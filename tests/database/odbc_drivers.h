#pragma once

#include "database/driver_path.h"
#include "database/engine.h"
#include "database/new_database.h"

#ifndef QUELVARN_NO_ODBC
#include "database/odbc/api.h"
#endif

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

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
inline constexpr std::string_view ODBC_TREIBER_ACCESS = "Microsoft Access Driver (*.mdb, *.accdb)";

// Whether the driver is installed, and the program was built with ODBC.
inline bool hatOdbcTreiber([[maybe_unused]] std::string_view name)
{
#ifdef QUELVARN_NO_ODBC
    return false;
#else
    static const std::vector<std::string> vorhandene = odbc::Umgebung().treiber();
    return std::ranges::find(vorhandene, name) != vorhandene.end();
#endif
}

// Why the tests over this driver cannot run, or "". The functions that a PostgreSQL database of ours has are made here.
inline std::string bereiteOdbcVor(bool postgres, const std::string& adresse)
{
    if (!hatOdbcTreiber(postgres ? ODBC_TREIBER_POSTGRES : ODBC_TREIBER_SQLITE))
        return "the ODBC driver of this database is not installed";
    if (postgres) {
        const auto engine = oeffnePostgres(adresse);
        engine->legeTabelleAn({"Anlass", {{"x"}}, {}});
        engine->entferneTabelle("Anlass");
    }
    return {};
}

// With the module that teaches the driver the order of our texts.
inline std::string odbcText(const std::filesystem::path& sqliteDatei, int millisekundenGeduld = 60000)
{
    return "DRIVER={" + std::string(ODBC_TREIBER_SQLITE) + "};Database=" + treiberPfad(sqliteDatei) +
           ";LoadExt=" QUELVARN_SQLITE_MODULE ";Timeout=" + std::to_string(millisekundenGeduld);
}

// From the address that PostgresCluster gives.
inline std::string odbcText(const std::string& adresse)
{
    const auto zwischen = [&](std::string_view vor, std::string_view nach) {
        const std::size_t anfang = adresse.find(vor) + vor.size();
        return adresse.substr(anfang, adresse.find(nach, anfang) - anfang);
    };
    return "DRIVER={" + std::string(ODBC_TREIBER_POSTGRES) + "};Servername=" + zwischen("host=", "&") +
           ";Port=" + zwischen("port=", "&") + ";Database=" + zwischen("postgresql:///", "?") + ";Uid=quelvarn";
}

} // namespace quelvarn::test
