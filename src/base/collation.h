#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

// How texts compare, on every engine alike: blind to case (umlauts too) and to trailing blanks.
// Letters decide first ("Ä" stands beside "A"), accents break ties; "ß" equals "ss".
// Blank, then punctuation, then digits, then letters.

// A byte string whose order is the order of the texts. Equal keys are equal texts. Holds no NUL.
std::string sortKey(std::string_view utf8);

// As comparing the two sort keys, without building them: below 0, 0, above 0.
int compareText(std::string_view left, std::string_view right);

bool equalText(std::string_view left, std::string_view right);

// Case folding character by character, for LIKE: the number of characters stays the same, blanks count.
std::string foldCase(std::string_view utf8);

// Upper and lower case of every letter, umlauts included. "ß" stays.
std::string toUpper(std::string_view utf8);
std::string toLower(std::string_view utf8);

} // namespace quelvarn
