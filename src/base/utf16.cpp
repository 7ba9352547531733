#include "base/utf16.h"

#include "base/utf8.h"

namespace quelvarn {
namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t firstBeyondPlane = 0x10000;

bool isHighSurrogate(char32_t character)
{
    return character >= 0xD800 && character < 0xDC00;
}

bool isLowSurrogate(char32_t character)
{
    return character >= 0xDC00 && character < 0xE000;
}

} // namespace

std::u16string toUtf16(std::string_view utf8)
{
    std::u16string text;
    text.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const char32_t character = nextCodePoint(utf8, i);
        if (character < firstBeyondPlane) {
            text += static_cast<char16_t>(character);
        } else {
            text += static_cast<char16_t>(0xD800 + ((character - firstBeyondPlane) >> 10));
            text += static_cast<char16_t>(0xDC00 + ((character - firstBeyondPlane) & 0x3FF));
        }
    }
    return text;
}

std::string fromUtf16(std::u16string_view text)
{
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t character = text[i];
        if (isHighSurrogate(character) && i + 1 < text.size() && isLowSurrogate(text[i + 1]))
            character = firstBeyondPlane + ((character - 0xD800) << 10) + (text[++i] - 0xDC00);
        else if (isHighSurrogate(character) || isLowSurrogate(character))
            character = replacement;
        appendUtf8(utf8, character);
    }
    return utf8;
}

} // namespace quelvarn
