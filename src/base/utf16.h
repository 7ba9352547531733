#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

// A broken character becomes U+FFFD.
std::u16string toUtf16(std::string_view utf8);
std::string fromUtf16(std::u16string_view text);

} // namespace quelvarn
