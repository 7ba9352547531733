#pragma once

#include <cstdint>
#include <span>

namespace quelvarn {

// A character beyond ASCII that folds, has another case or carries an accent. Others stand for themselves.
struct Kollationszeichen
{
    char32_t zeichen;
    char32_t fold; // simple case folding
    char32_t gross;
    char32_t klein;
    char32_t basis;      // the folded character without its accents, folded
    std::uint8_t akzent; // 0 none, at most 124
};

// In order of `zeichen`, which is below 0xA800.
std::span<const Kollationszeichen> kollationszeichen();
// Null for a character that stands for itself.
const Kollationszeichen* findKollationszeichen(char32_t character);

} // namespace quelvarn
