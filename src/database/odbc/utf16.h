#pragma once

#include <string>
#include <string_view>

namespace quelvarn::odbc {

// A broken character becomes U+FFFD.
std::u16string alsUtf16(std::string_view utf8);
std::string ausUtf16(std::u16string_view text);

} // namespace quelvarn::odbc
