#pragma once

#include "database/connection.h"

#include <string>
#include <string_view>

namespace quelvarn {

// The template drawing of a branch: `Ebene` 1 to 5 for Hauptmerkmal_C to G, and its condition. A drawing whose deeper
// features are empty goes before more general ones. "" when there is none.
std::string VorlageSuchen(Connection& verbindung, int Ebene, std::string_view Bedingung);

} // namespace quelvarn
