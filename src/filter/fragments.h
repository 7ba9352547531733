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
std::string LikeFragment(std::string_view Feldname, std::string_view value);
// The value as a whole number; throws RuntimeError where it is none.
std::string NumberFragment(std::string_view Feldname, std::string_view value);
std::string DateiFragment(std::string_view Feldname, std::string_view value);
std::string DateiFragmentWennGefuellt(std::string_view Feldname, std::string_view value);

// A day in the two forms, which must not be merged: the recordset filter reads the day first, SQL the month. `code`
// is that of the step. Throws RuntimeError where the text is no date.
std::string ErstelltFilterFragment(std::string_view Date, int code);
std::string ErstelltSqlFragment(std::string_view Date, int code);
std::string GeaendertFilterFragment(std::string_view Date, int code);
std::string GeaendertSqlFragment(std::string_view Date, int code);

// The bounds of all main values that have some; " AND " in front where a filter stands before them.
std::string mainValueFragments(const std::array<MainValueBand, MAIN_VALUE_COUNT>& bounds, bool behindFilter);
// The same as conditions. A stored number counts as it reads with four places.
std::vector<sql::ExpressionPointer> mainValueConditions(const std::array<MainValueBand, MAIN_VALUE_COUNT>& bounds);

// What a value means: each spelling that the lists count as this one (case, blanks behind it), and with stars in it
// what they leave open as well.
sql::ExpressionPointer valueCondition(std::string_view column, std::string_view value);

// A step as a condition. Both texts empty and no condition: it applies nothing.
struct StepFragment
{
    std::string filterForm; // Day first.
    std::string sqlForm;    // Month first.
    SharedCondition condition = {};
};

// The step of this number, counted from 0.
StepFragment stepFragment(const FilterStep& step, int number);
// The same for the structure features, which know texts alone.
StepFragment structureFragment(const FilterStep& step);
// What a FilterString means, for a query or a list; null for "". Only this way do its values mean in a statement what
// they mean in the run of a filter.
sql::ExpressionPointer filterCondition(std::string_view FilterString);

} // namespace quelvarn
