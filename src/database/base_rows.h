#pragma once

#include "base/date_time.h"
#include "database/value.h"

#include <array>
#include <vector>

namespace quelvarn {

// Feld1 to Feld5 of a row of the table Ini.
using IniRow = std::array<Value, 5>;

// Owner of the rows that hold for the whole installation.
inline constexpr std::string_view INSTALLATION = "!QV_Ini";

struct Installation
{
    DateTime state;    // Put into the stamps of the five document types.
    Value orderFolder; // Null while the office has not chosen one.
};

// The rows that a register needs to start without a complaint.
std::vector<IniRow> installationRows(const Installation& installation);

DateTime now();

} // namespace quelvarn
