#pragma once

#include "filter/filter_state.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// Conditions as text. A value stands in them as it is: no quote is doubled, no wildcard added.
std::string LikeFragment(std::string_view Feldname, std::string_view Wert);
// The value as a whole number; throws Laufzeitfehler where it is none.
std::string NumberFragment(std::string_view Feldname, std::string_view Wert);
std::string DateiFragment(std::string_view Feldname, std::string_view Wert);
std::string DateiFragmentWennGefuellt(std::string_view Feldname, std::string_view Wert);

// A day in the two forms, which must not be merged: the recordset filter reads the day first, SQL the month. `code`
// is that of the step. Throws Laufzeitfehler where the text is no date.
std::string ErstelltFilterFragment(std::string_view Datum, int code);
std::string ErstelltSqlFragment(std::string_view Datum, int code);
std::string GeaendertFilterFragment(std::string_view Datum, int code);
std::string GeaendertSqlFragment(std::string_view Datum, int code);

// The bounds of all main values that have some; " AND " in front where a filter stands before them.
std::string HauptwertFragmente(const std::array<Hauptwertgrenzen, ANZAHL_HAUPTWERTE>& grenzen, bool hinterFilter);

// A step as a condition. Both texts empty: it applies nothing.
struct Schrittfragment
{
    std::string filterform;           // Day first.
    std::string sqlform;              // Month first.
    std::vector<std::string> gemeint; // Each comparison that a reader of the text must find, written out clearly.
};

// The step of this number, counted from 0.
Schrittfragment schrittfragment(const FilterSchritt& schritt, int nummer);
// The same for the structure features, which know texts alone.
Schrittfragment strukturfragment(const FilterSchritt& schritt);
// Throws Laufzeitfehler when the text reads as anything but these comparisons joined with " AND ": an apostrophe in
// a value must neither add a condition nor change one.
void verlangeGemeintes(std::string_view ausdruck, const std::vector<std::string>& gemeint);

} // namespace quelvarn
