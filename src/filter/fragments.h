#pragma once

#include "database/recordset.h"
#include "filter/filter_state.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// Conditions as text. A value stands in them as it is, no wildcard added; its apostrophes are doubled, so that the text
// reads as it was meant, whatever the value holds. '*' is the only wildcard.
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
// The same as conditions. A stored number counts as it reads with four places.
std::vector<sql::AusdruckZeiger> mainValueConditions(const std::array<Hauptwertgrenzen, ANZAHL_HAUPTWERTE>& bounds);

// What a value means: each spelling that the lists count as this one (case, blanks behind it), and with stars in it
// what they leave open as well.
sql::AusdruckZeiger valueCondition(std::string_view column, std::string_view value);

// A step as a condition. Both texts empty and no condition: it applies nothing.
struct Schrittfragment
{
    std::string filterform; // Day first.
    std::string sqlform;    // Month first.
    SharedCondition condition = {};
};

// The step of this number, counted from 0.
Schrittfragment schrittfragment(const FilterSchritt& schritt, int nummer);
// The same for the structure features, which know texts alone.
Schrittfragment strukturfragment(const FilterSchritt& schritt);
// What a FilterString means, for a query or a list; null for "". Only this way do its values mean in a statement what
// they mean in the run of a filter.
sql::AusdruckZeiger filterCondition(std::string_view FilterString);

} // namespace quelvarn
