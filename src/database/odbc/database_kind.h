#pragma once

#include "database/sql/renderer.h"

#include <optional>
#include <string>
#include <string_view>

namespace quelvarn::odbc {

// What differs between the databases that a driver may lead to. Offices have Access; the others show on every system
// that the engine does what it should.
struct OdbcKind
{
    std::string_view addressCode; // As the driver names it.
    std::string_view name;
    const sql::Dialect& (*dialect)();
    bool distinctBlind; // Its DISTINCT is that of the program.
    bool savepoints;    // Knows SAVEPOINT.
    // Takes the write lock of table {0} without a change, {1} being one of its columns; "" where there is no such
    // means.
    std::string_view writeLock;
    bool createsTables; // The tables of an Access file belong to the program that fills it.
};

// By the driver's name of the database; Access for every name unknown.
const OdbcKind& odbcKindOf(std::string_view addressCode);
// CREATE TABLE without a row key.
std::string createTableStatement(const OdbcKind& kind, const TableSchema& table);
// By the number of the type in ODBC; nothing for pictures and other bytes, which no cell of ours holds.
std::optional<FieldType> findFieldType(int odbcType);

} // namespace quelvarn::odbc
