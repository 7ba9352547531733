#pragma once

#include "filter/filter_state.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// More steps than these are not stored.
inline constexpr std::size_t GESPEICHERTE_SCHRITTE = 5;

// What a stored Filterstring says.
struct GespeicherterFilter
{
    std::array<FilterSchritt, ANZAHL_SCHRITTE> FilterSchritte;
    int FilterAnzahl = 0;
    std::vector<AdditionalValue> ZusBenutzDef;
    std::optional<std::array<bool, ANZAHL_STATUS>> ChFilterStat; // None when no status entry was read.
    Filterbereich bereich = Filterbereich::Eigenschaften;        // The kind of the entries.
};

// Entries "Feldname\Wert\FilterCode\Benennung|", and last "\110010\\Status|" when a status box is ticked.
// For a user-defined property the pattern stands in place of the code.
std::string alsFilterstring(const Filterzustand& zustand);
// A damaged entry ends the reading; what stood before it counts.
GespeicherterFilter leseFilterstring(std::string_view Filterstring);
// False when a value holds one of the characters that part the entries.
bool speicherbar(const Filterzustand& zustand);

} // namespace quelvarn
