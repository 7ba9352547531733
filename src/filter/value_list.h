#pragma once

#include "session/session_state.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A combo of the page: its values, and the count shown beside it.
struct ValueList
{
    std::vector<std::string> values;
    std::string count; // "0" where the one value is empty.
};

ValueList valueList(std::vector<std::string> values);

// The name that the office gave a column: of "Hauptmerkmal_A" that of "hauptmerkmal a".
std::string displayName(const Labels& labels, std::string_view Feldname);

} // namespace quelvarn
