#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

// How texts compare, on every engine alike: blind to case (umlauts too) and to trailing blanks.
// Letters decide first ("Ä" stands beside "A"), accents break ties; "ß" equals "ss".
// Blank, then punctuation, then digits, then letters.

// A byte string whose order is the order of the texts. Equal keys are equal texts. Holds no NUL.
//
// An engine that builds the key by itself must do exactly this:
// 1. Cut trailing blanks (U+0020). "ß" and "ẞ" become "ss".
// 2. Each character gives its base and its accent by the collation table; ASCII letters become small;
//    every other character stands for itself, without an accent.
// 3. Each base gives its weight: control characters (up to U+001F, and U+007F) and the blank give 0x02;
//    the 32 punctuation characters of ASCII give 0x03 to 0x22 in the order of their codes;
//    all others stand as they are, in UTF-8.
// 4. The key is all weights. When some character has an accent, 0x01 follows, then one byte a character:
//    2 plus the number of its accent; bytes 0x02 at the end are cut.
std::string sortKey(std::string_view utf8);

// As comparing the two sort keys, without building them: below 0, 0, above 0.
int compareText(std::string_view left, std::string_view right);

bool equalText(std::string_view left, std::string_view right);

// Case folding character by character, for LIKE: the number of characters stays the same, blanks count.
std::string foldCase(std::string_view utf8);
char32_t foldCase(char32_t character);

// Upper and lower case of every letter, umlauts included. "ß" stays.
std::string toUpper(std::string_view utf8);
std::string toLower(std::string_view utf8);

} // namespace quelvarn
