#include "tools/import/linux/jet_text.h"

#include "base/utf8.h"

#include <vector>

namespace quelvarn::tools {

namespace {

constexpr std::string_view KOMPRIMIERT = "\xFF\xFE";
constexpr char16_t HOHE_HAELFTE = 0xD800;
constexpr char16_t NIEDRIGE_HAELFTE = 0xDC00;
constexpr char16_t HINTER_DEN_HAELFTEN = 0xE000;
constexpr char32_t ERSATZ = 0xFFFD;

char16_t zeichenBei(std::string_view bytes, std::size_t stelle)
{
    return static_cast<char16_t>(static_cast<std::uint8_t>(bytes[stelle]) |
                                 (static_cast<std::uint8_t>(bytes[stelle + 1]) << 8));
}

// A zero byte switches between one and two bytes a character.
void entpacke(std::string_view bytes, std::u16string& zeichen)
{
    bool einByte = true;
    for (std::size_t i = 0; i < bytes.size();) {
        if (bytes[i] == '\0') {
            einByte = !einByte;
            ++i;
        } else if (einByte) {
            zeichen += static_cast<std::uint8_t>(bytes[i++]);
        } else if (i + 1 < bytes.size()) {
            zeichen += zeichenBei(bytes, i);
            i += 2;
        } else {
            break;
        }
    }
}

} // namespace

void dekodiereJet4(std::string_view bytes, std::string& utf8)
{
    utf8.clear();
    thread_local std::u16string zeichen;
    zeichen.clear();
    if (bytes.starts_with(KOMPRIMIERT)) {
        entpacke(bytes.substr(KOMPRIMIERT.size()), zeichen);
    } else {
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
            zeichen += zeichenBei(bytes, i);
    }
    for (std::size_t i = 0; i < zeichen.size(); ++i) {
        const char16_t z = zeichen[i];
        if (z < HOHE_HAELFTE || z >= HINTER_DEN_HAELFTEN) {
            appendUtf8(utf8, z);
        } else if (z < NIEDRIGE_HAELFTE && i + 1 < zeichen.size() && zeichen[i + 1] >= NIEDRIGE_HAELFTE &&
                   zeichen[i + 1] < HINTER_DEN_HAELFTEN) {
            appendUtf8(utf8, 0x10000 + ((char32_t{z} - HOHE_HAELFTE) << 10) + (zeichen[++i] - NIEDRIGE_HAELFTE));
        } else {
            appendUtf8(utf8, ERSATZ);
        }
    }
}

} // namespace quelvarn::tools
