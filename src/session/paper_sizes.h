#pragma once

#include <string>

namespace quelvarn {

inline constexpr int PAPIERCODE_UNBEKANNT = 256; // A printer that does not tell its paper.

// The name of a printer's paper code as the lists of this program write it; "Keine Angabe" for one they lack.
std::string papierName(int code);

} // namespace quelvarn
