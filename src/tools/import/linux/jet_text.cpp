#include "tools/import/linux/jet_text.h"

#include "base/utf8.h"

#include <vector>

namespace quelvarn::tools {

namespace {

constexpr std::string_view COMPRESSED = "\xFF\xFE";
constexpr char16_t HIGH_HALF = 0xD800;
constexpr char16_t LOW_HALF = 0xDC00;
constexpr char16_t BEHIND_THE_HALVES = 0xE000;
constexpr char32_t REPLACEMENT = 0xFFFD;

char16_t characterAt(std::string_view bytes, std::size_t position)
{
    return static_cast<char16_t>(static_cast<std::uint8_t>(bytes[position]) |
                                 (static_cast<std::uint8_t>(bytes[position + 1]) << 8));
}

// A zero byte switches between one and two bytes a character.
void unpack(std::string_view bytes, std::u16string& character)
{
    bool oneByte = true;
    for (std::size_t i = 0; i < bytes.size();) {
        if (bytes[i] == '\0') {
            oneByte = !oneByte;
            ++i;
        } else if (oneByte) {
            character += static_cast<std::uint8_t>(bytes[i++]);
        } else if (i + 1 < bytes.size()) {
            character += characterAt(bytes, i);
            i += 2;
        } else {
            break;
        }
    }
}

} // namespace

void decodeJet4(std::string_view bytes, std::string& utf8)
{
    utf8.clear();
    thread_local std::u16string character;
    character.clear();
    if (bytes.starts_with(COMPRESSED)) {
        unpack(bytes.substr(COMPRESSED.size()), character);
    } else {
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
            character += characterAt(bytes, i);
    }
    for (std::size_t i = 0; i < character.size(); ++i) {
        const char16_t z = character[i];
        if (z < HIGH_HALF || z >= BEHIND_THE_HALVES) {
            appendUtf8(utf8, z);
        } else if (z < LOW_HALF && i + 1 < character.size() && character[i + 1] >= LOW_HALF &&
                   character[i + 1] < BEHIND_THE_HALVES) {
            appendUtf8(utf8, 0x10000 + ((char32_t{z} - HIGH_HALF) << 10) + (character[++i] - LOW_HALF));
        } else {
            appendUtf8(utf8, REPLACEMENT);
        }
    }
}

} // namespace quelvarn::tools
