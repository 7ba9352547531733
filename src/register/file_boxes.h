#pragma once

#include <string_view>

namespace quelvarn {

class Meldungen;

// "Im Verzeichnis nicht vorhanden"
void meldeDateiFehlt(Meldungen& meldungen, std::string_view pfad);

} // namespace quelvarn
