#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quelvarn::tools {

// A text as Access 2000 and later store it, as UTF-8: UTF-16, or compressed to one byte a character where the
// bytes begin with FF FE. Half a surrogate pair becomes U+FFFD.
void decodeJet4(std::string_view bytes, std::string& utf8);

} // namespace quelvarn::tools
