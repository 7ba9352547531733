#pragma once

#include <string_view>

namespace quelvarn {

class Meldungen;

inline constexpr std::string_view NICHT_IM_VERZEICHNIS = "Im Verzeichnis nicht vorhanden";

// With a last line of advice, if any.
void meldeDateiFehlt(Meldungen& meldungen, std::string_view pfad, std::string_view rat = {});

} // namespace quelvarn
