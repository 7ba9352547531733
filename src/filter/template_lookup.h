#pragma once

#include "database/connection.h"

#include <span>
#include <string>

namespace quelvarn {

// The template drawing of a branch: its values of Hauptmerkmal_C and below, five at most. A drawing whose deeper
// features are empty goes before more general ones, and of equals the first by path. "" when there is none.
std::string VorlageSuchen(Connection& connection, std::span<const std::string> branch);

} // namespace quelvarn
