#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

// UTF-8 and the UTF-16 of the system. What is broken on either side becomes U+FFFD.
std::wstring wide(std::string_view utf8);
std::string narrow(std::wstring_view utf16);

} // namespace quelvarn
