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
std::vector<std::string> readNames(Connection& connection, std::string_view table, const std::string& WhereStatus);
// Autor, Bearbeiter, Material, Projekt; all empty when the work was given up.
std::array<std::vector<std::string>, ADDITIONAL_VALUE_COUNT>
readAdditions(Connection& connection, std::string_view table, std::size_t rows, LongWork& work);
std::vector<std::string> readValues(Connection& connection, std::string_view table, std::string_view name);
// How a Wert is listed: a path as "*" and its file name.
std::string shownValue(const std::string& value);
// The receiver that a code stands for; "" where the address table has none.
std::string receiver(Connection& connection, std::string_view addressCode);

} // namespace quelvarn
