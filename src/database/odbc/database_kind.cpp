#include "database/odbc/database_kind.h"

#ifdef _WIN32
#include <windows.h>
#endif
#include "base/text.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <sql.h>
#include <sqlext.h>

namespace quelvarn::odbc {
namespace {

constexpr std::array<Datenbankart, 3> arten{{
    {"ACCESS", "Access", sql::accessDialekt, true, false, "", false},
    {"SQLite", "OdbcSQLite", sql::sqliteOdbcDialekt, true, true, "UPDATE {0} SET {1} = {1} WHERE 1 = 0", true},
    {"PostgreSQL", "OdbcPostgreSQL", sql::postgresOdbcDialekt, false, true,
     "LOCK TABLE {0} IN SHARE ROW EXCLUSIVE MODE", true},
}};

std::string_view deklaration(const Datenbankart& art, FeldTyp typ)
{
    const bool sqlite = art.dialekt == sql::sqliteOdbcDialekt;
    switch (typ) {
    case FeldTyp::Ganzzahl:
        return "BIGINT";
    case FeldTyp::Gleitkomma:
        return "DOUBLE PRECISION";
    case FeldTyp::Datum:
        return sqlite ? "DATETIME" : "TIMESTAMP(0)";
    case FeldTyp::Text:
        break;
    }
    return sqlite ? "TEXT COLLATE QV" : "TEXT COLLATE \"C\"";
}

} // namespace

const Datenbankart& datenbankartOf(std::string_view kennung)
{
    const auto treffer = std::ranges::find_if(
        arten, [&](const Datenbankart& art) { return startsWithIgnoringCase(kennung, art.kennung); });
    return treffer == arten.end() ? arten.front() : *treffer;
}

std::string tabelleAnlegen(const Datenbankart& art, const Tabellenschema& tabelle)
{
    std::vector<std::string> spalten;
    for (const Spalte& spalte : tabelle.spalten)
        spalten.push_back(sql::Dialekt::bezeichner(spalte.name) + " " + std::string(deklaration(art, spalte.typ)));
    return fmt::format("CREATE TABLE {} ({})", sql::Dialekt::bezeichner(tabelle.name), join(spalten, ", "));
}

std::optional<FeldTyp> findFeldTyp(int odbcTyp)
{
    switch (odbcTyp) {
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
        return FeldTyp::Ganzzahl;
    case SQL_NUMERIC:
    case SQL_DECIMAL:
    case SQL_FLOAT:
    case SQL_REAL:
    case SQL_DOUBLE:
        return FeldTyp::Gleitkomma;
    case SQL_DATE: // ODBC 2 names them so.
    case SQL_TIME:
    case SQL_TIMESTAMP:
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIME:
    case SQL_TYPE_TIMESTAMP:
        return FeldTyp::Datum;
    case SQL_BINARY:
    case SQL_VARBINARY:
    case SQL_LONGVARBINARY:
        return std::nullopt;
    default:
        return FeldTyp::Text;
    }
}

} // namespace quelvarn::odbc
