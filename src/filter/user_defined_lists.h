#pragma once

#include "database/connection.h"
#include "filter/filter_state.h"
#include "platform/progress.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// What occurs in a table of user-defined properties, each text once and in order. Faults pass through.
std::vector<std::string> leseNamen(Connection& verbindung, std::string_view tabelle, const std::string& WhereStatus);
// Autor, Bearbeiter, Material, Projekt; all empty when the work was given up.
std::array<std::vector<std::string>, ANZAHL_ZUSBENUTZDEF> leseZusaetze(Connection& verbindung, std::string_view tabelle,
                                                                       std::size_t zeilen, LangeArbeit& arbeit);
std::vector<std::string> leseWerte(Connection& verbindung, std::string_view tabelle, std::string_view name);
// How a Wert is listed: a path as "*" and its file name.
std::string gezeigterWert(const std::string& wert);
// The receiver that a code stands for; "" where the address table has none.
std::string empfaenger(Connection& verbindung, std::string_view kennung);

} // namespace quelvarn
