#pragma once

#include "filter/filter_state.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// More steps than these are not stored.
inline constexpr std::size_t SAVED_STEPS = 5;

// What a stored Filterstring says.
struct SavedFilter
{
    std::array<FilterStep, STEP_COUNT> FilterSchritte;
    int FilterAnzahl = 0;
    std::vector<AdditionalValue> ZusBenutzDef;
    std::optional<std::array<bool, STATUS_COUNT>> ChFilterStat; // None when no status entry was read.
    FilterSection section = FilterSection::Properties;          // The kind of the entries.
};

// Entries "Feldname\Wert\FilterCode\Benennung|", and last "\110010\\Status|" when a status box is ticked.
// For a user-defined property the pattern stands in place of the code.
std::string asFilterString(const TypeFilter& state);
// A damaged entry ends the reading; what stood before it counts.
SavedFilter readFilterString(std::string_view Filterstring);
// False when a value holds one of the characters that part the entries.
bool storable(const TypeFilter& state);

} // namespace quelvarn
