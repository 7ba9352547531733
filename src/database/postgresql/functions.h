#pragma once

#include <string>
#include <string_view>

namespace quelvarn::postgresql {

// Statements that make the server's functions by which texts compare as everywhere in the program:
// qv_key(text) gives sortKey, qv_fold(text) gives foldCase. `schema` is where they are put.
std::string createFunctionsStatement(std::string_view schema);

} // namespace quelvarn::postgresql
