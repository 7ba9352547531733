#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quelvarn {

// Decodes the character at `position` and moves behind it. A broken byte is taken as one character U+FFFD.
char32_t nextCodePoint(std::string_view utf8, std::size_t& position);
void appendUtf8(std::string& target, char32_t character);

std::u32string toUtf32(std::string_view utf8);
std::string toUtf8(std::u32string_view text);
std::size_t countCharacters(std::string_view utf8);

// The leftmost or rightmost `count` characters; the whole text when it is shorter.
std::string_view leftCharacters(std::string_view utf8, std::size_t count);
std::string_view rightCharacters(std::string_view utf8, std::size_t count);

// Windows code page 1252. A character that it lacks becomes '?'.
std::string toWindows1252(std::string_view utf8);
std::string fromWindows1252(std::string_view bytes);

} // namespace quelvarn
