#pragma once

#include "session/session_state.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A combo of the page: its values, and the count shown beside it.
struct Werteliste
{
    std::vector<std::string> werte;
    std::string anzahl; // "0" where the one value is empty.
};

Werteliste werteliste(std::vector<std::string> werte);

// The name that the office gave a column: of "Hauptmerkmal_A" that of "hauptmerkmal a".
std::string anzeigename(const SessionState& session, std::string_view Feldname);

} // namespace quelvarn
