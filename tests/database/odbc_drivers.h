#pragma once

#include "database/driver_path.h"
#include "database/engine.h"
#include "database/open_engine.h"

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
inline constexpr std::string_view ODBC_DRIVER_SQLITE = "SQLite3";
inline constexpr std::string_view ODBC_DRIVER_POSTGRES = "PostgreSQL Unicode";
inline constexpr std::string_view ODBC_DRIVER_MDB = "MDBTools";
inline constexpr std::string_view ODBC_DRIVER_ACCESS = "Microsoft Access Driver (*.mdb, *.accdb)";

// Whether the driver is installed, and the program was built with ODBC.
inline bool hasOdbcDriver([[maybe_unused]] std::string_view name)
{
#ifdef QUELVARN_NO_ODBC
    return false;
#else
    static const std::vector<std::string> existing = odbc::Environment().driver();
    return std::ranges::find(existing, name) != existing.end();
#endif
}

// Why the tests over this driver cannot run, or "". The functions that a PostgreSQL database of ours has are made here.
inline std::string prepareOdbc(bool postgres, const std::string& address)
{
    if (!hasOdbcDriver(postgres ? ODBC_DRIVER_POSTGRES : ODBC_DRIVER_SQLITE))
        return "the ODBC driver of this database is not installed";
    if (postgres) {
        const auto engine = openPostgres(address);
        engine->createTable({"Anlass", {{"x"}}, {}});
        engine->removeTable("Anlass");
    }
    return {};
}

// With the module that teaches the driver the order of our texts.
inline std::string odbcText(const std::filesystem::path& sqliteFile, int millisecondsPatience = 60000)
{
    return "DRIVER={" + std::string(ODBC_DRIVER_SQLITE) + "};Database=" + driverPath(sqliteFile) +
           ";LoadExt=" QUELVARN_SQLITE_MODULE ";Timeout=" + std::to_string(millisecondsPatience);
}

// From the address that PostgresCluster gives.
inline std::string odbcText(const std::string& address)
{
    const auto between = [&](std::string_view before, std::string_view after) {
        const std::size_t begin = address.find(before) + before.size();
        return address.substr(begin, address.find(after, begin) - begin);
    };
    return "DRIVER={" + std::string(ODBC_DRIVER_POSTGRES) + "};Servername=" + between("host=", "&") +
           ";Port=" + between("port=", "&") + ";Database=" + between("postgresql:///", "?") + ";Uid=quelvarn";
}

} // namespace quelvarn::test
