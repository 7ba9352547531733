#pragma once

#include <cstdint>
#include <span>

namespace quelvarn {

// A character beyond ASCII that folds, has another case or carries an accent. Others stand for themselves.
struct CollationCharacter
{
    char32_t character;
    char32_t fold; // simple case folding
    char32_t large;
    char32_t small;
    char32_t basis;      // the folded character without its accents, folded
    std::uint8_t accent; // 0 none, at most 124
};

// In order of `character`, which is below 0xA800.
std::span<const CollationCharacter> collationCharacters();
// Null for a character that stands for itself.
const CollationCharacter* findCollationCharacter(char32_t character);

} // namespace quelvarn
