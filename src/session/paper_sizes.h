#pragma once

#include <string>

namespace quelvarn {

inline constexpr int PAPER_CODE_UNKNOWN = 256; // A printer that does not tell its paper.

// The name of a printer's paper code as the lists of this program write it; "Keine Angabe" for one they lack.
std::string paperName(int code);

} // namespace quelvarn
