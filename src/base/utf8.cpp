#include "base/utf8.h"

#include <array>

namespace quelvarn {
namespace {

constexpr char32_t replacement = 0xFFFD;

// What the bytes 0x80 to 0x9F of code page 1252 mean; its five gaps keep their own number.
constexpr std::array<char32_t, 32> windows1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool isContinuation(std::string_view utf8, std::size_t position)
{
    return position < utf8.size() && (static_cast<unsigned char>(utf8[position]) & 0xC0) == 0x80;
}

// Bytes behind the lead byte, 0 when it leads nothing.
int continuationsOf(unsigned char lead)
{
    if (lead >= 0xC2 && lead <= 0xDF)
        return 1;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 2;
    if (lead >= 0xF0 && lead <= 0xF4)
        return 3;
    return 0;
}

// Not a surrogate, not beyond the last character, not written longer than needed.
bool isWellFormed(char32_t character, int continuations)
{
    constexpr std::array<char32_t, 4> smallest = {0, 0x80, 0x800, 0x10000};
    return character >= smallest[continuations] && character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

char toWindows1252(char32_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<char>(character);
    for (std::size_t i = 0; i < windows1252.size(); ++i) {
        if (windows1252[i] == character)
            return static_cast<char>(0x80 + i);
    }
    return '?';
}

std::size_t positionOfCharacter(std::string_view utf8, std::size_t count)
{
    std::size_t position = 0;
    for (; count > 0 && position < utf8.size(); --count)
        nextCodePoint(utf8, position);
    return position;
}

} // namespace

char32_t nextCodePoint(std::string_view utf8, std::size_t& position)
{
    const auto lead = static_cast<unsigned char>(utf8[position++]);
    if (lead < 0x80)
        return lead;
    const int continuations = continuationsOf(lead);
    if (continuations == 0)
        return replacement;
    char32_t character = lead & (0x3F >> continuations);
    for (int i = 0; i < continuations; ++i) {
        if (!isContinuation(utf8, position + i))
            return replacement;
        character = (character << 6) | (static_cast<unsigned char>(utf8[position + i]) & 0x3F);
    }
    if (!isWellFormed(character, continuations))
        return replacement;
    position += continuations;
    return character;
}

void appendUtf8(std::string& target, char32_t character)
{
    const auto continuation = [character](int shift) {
        return static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x80) {
        target += static_cast<char>(character);
    } else if (character < 0x800) {
        target += {static_cast<char>(0xC0 | (character >> 6)), continuation(0)};
    } else if (character < 0x10000) {
        target += {static_cast<char>(0xE0 | (character >> 12)), continuation(6), continuation(0)};
    } else {
        target += {static_cast<char>(0xF0 | (character >> 18)), continuation(12), continuation(6), continuation(0)};
    }
}

std::u32string toUtf32(std::string_view utf8)
{
    std::u32string result;
    result.reserve(utf8.size());
    for (std::size_t position = 0; position < utf8.size();)
        result += nextCodePoint(utf8, position);
    return result;
}

std::string toUtf8(std::u32string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (const char32_t character : text)
        appendUtf8(result, character);
    return result;
}

std::size_t countCharacters(std::string_view utf8)
{
    std::size_t count = 0;
    for (std::size_t position = 0; position < utf8.size(); ++count)
        nextCodePoint(utf8, position);
    return count;
}

std::string_view leftCharacters(std::string_view utf8, std::size_t count)
{
    return utf8.substr(0, positionOfCharacter(utf8, count));
}

std::string_view rightCharacters(std::string_view utf8, std::size_t count)
{
    const std::size_t all = countCharacters(utf8);
    return all <= count ? utf8 : utf8.substr(positionOfCharacter(utf8, all - count));
}

std::string toWindows1252(std::string_view utf8)
{
    std::string result;
    result.reserve(utf8.size());
    for (std::size_t position = 0; position < utf8.size();)
        result += toWindows1252(nextCodePoint(utf8, position));
    return result;
}

std::string fromWindows1252(std::string_view bytes)
{
    std::string result;
    result.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(result, byte >= 0x80 && byte < 0xA0 ? windows1252[byte - 0x80] : byte);
    }
    return result;
}

} // namespace quelvarn
