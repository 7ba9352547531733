#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

// The text of a small file that people edit: UTF-8 with or without its mark, else code page 1252. As UTF-8.
std::string decodeFileText(std::string_view bytes);
// Code page 1252, which older programs expect; UTF-8 with its mark where that page cannot hold the text.
std::string encodeFileText(std::string_view utf8);

} // namespace quelvarn
