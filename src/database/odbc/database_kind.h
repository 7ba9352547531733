#pragma once

#include "database/sql/renderer.h"

#include <optional>
#include <string>
#include <string_view>

namespace quelvarn::odbc {

// What differs between the databases that a driver may lead to. Offices have Access; the others show on every system
// that the engine does what it should.
struct Datenbankart
{
    std::string_view kennung; // As the driver names it.
    std::string_view name;
    const sql::Dialekt& (*dialekt)();
    bool distinctBlind;    // Its DISTINCT is that of the program.
    bool sicherungspunkte; // Knows SAVEPOINT.
    // Takes the write lock of table {0} without a change, {1} being one of its columns; "" where there is no such
    // means.
    std::string_view writeLock;
    bool legtTabellenAn; // The tables of an Access file belong to the program that fills it.
};

// By the driver's name of the database; Access for every name unknown.
const Datenbankart& datenbankartOf(std::string_view kennung);
// CREATE TABLE without a row key.
std::string tabelleAnlegen(const Datenbankart& art, const Tabellenschema& tabelle);
// By the number of the type in ODBC; nothing for pictures and other bytes, which no cell of ours holds.
std::optional<FeldTyp> findFeldTyp(int odbcTyp);

} // namespace quelvarn::odbc
