#include "database/odbc/database_kind.h"

#ifdef _WIN32
#include <windows.h>
#endif
#include "base/text.h"
#include "database/sql/access_dialect.h"
#include "database/sql/engine_dialects.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <sql.h>
#include <sqlext.h>

namespace quelvarn::odbc {
namespace {

constexpr std::array<OdbcKind, 3> kinds{{
    {"ACCESS", "Access", sql::accessDialect, true, false, "", false},
    {"SQLite", "OdbcSQLite", sql::sqliteOdbcDialect, true, true, "UPDATE {0} SET {1} = {1} WHERE 1 = 0", true},
    {"PostgreSQL", "OdbcPostgreSQL", sql::postgresOdbcDialect, false, true,
     "LOCK TABLE {0} IN SHARE ROW EXCLUSIVE MODE", true},
}};

std::string_view declaration(const OdbcKind& kind, FieldType type)
{
    const bool sqlite = kind.dialect == sql::sqliteOdbcDialect;
    switch (type) {
    case FieldType::Integer:
        return "BIGINT";
    case FieldType::FloatingPoint:
        return "DOUBLE PRECISION";
    case FieldType::Date:
        return sqlite ? "DATETIME" : "TIMESTAMP(0)";
    case FieldType::Text:
        break;
    }
    return sqlite ? "TEXT COLLATE QV" : "TEXT COLLATE \"C\"";
}

} // namespace

const OdbcKind& odbcKindOf(std::string_view addressCode)
{
    const auto hits = std::ranges::find_if(
        kinds, [&](const OdbcKind& kind) { return startsWithIgnoringCase(addressCode, kind.addressCode); });
    return hits == kinds.end() ? kinds.front() : *hits;
}

std::string createTableStatement(const OdbcKind& kind, const TableSchema& table)
{
    std::vector<std::string> columns;
    for (const ColumnInfo& column : table.columns)
        columns.push_back(sql::Dialect::identifier(column.name) + " " + std::string(declaration(kind, column.type)));
    return fmt::format("CREATE TABLE {} ({})", sql::Dialect::identifier(table.name), join(columns, ", "));
}

std::optional<FieldType> findFieldType(int odbcType)
{
    switch (odbcType) {
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
        return FieldType::Integer;
    case SQL_NUMERIC:
    case SQL_DECIMAL:
    case SQL_FLOAT:
    case SQL_REAL:
    case SQL_DOUBLE:
        return FieldType::FloatingPoint;
    case SQL_DATE: // ODBC 2 names them so.
    case SQL_TIME:
    case SQL_TIMESTAMP:
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIME:
    case SQL_TYPE_TIMESTAMP:
        return FieldType::Date;
    case SQL_BINARY:
    case SQL_VARBINARY:
    case SQL_LONGVARBINARY:
        return std::nullopt;
    default:
        return FieldType::Text;
    }
}

} // namespace quelvarn::odbc
