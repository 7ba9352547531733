#pragma once

#include <string_view>

namespace quelvarn {

// The picture of a document's type, by the ending of its file.
std::string_view documentSign(std::string_view filename);
inline constexpr std::string_view SPECIAL_TABLE_SIGN = "special-part";

} // namespace quelvarn
