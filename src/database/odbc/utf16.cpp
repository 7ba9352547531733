#include "database/odbc/utf16.h"

#include "base/utf8.h"

namespace quelvarn::odbc {
namespace {

constexpr char32_t ersatz = 0xFFFD;
constexpr char32_t ersterHinterEbene = 0x10000;

bool istVorderes(char32_t zeichen)
{
    return zeichen >= 0xD800 && zeichen < 0xDC00;
}

bool istHinteres(char32_t zeichen)
{
    return zeichen >= 0xDC00 && zeichen < 0xE000;
}

} // namespace

std::u16string alsUtf16(std::string_view utf8)
{
    std::u16string text;
    text.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const char32_t zeichen = nextCodePoint(utf8, i);
        if (zeichen < ersterHinterEbene) {
            text += static_cast<char16_t>(zeichen);
        } else {
            text += static_cast<char16_t>(0xD800 + ((zeichen - ersterHinterEbene) >> 10));
            text += static_cast<char16_t>(0xDC00 + ((zeichen - ersterHinterEbene) & 0x3FF));
        }
    }
    return text;
}

std::string ausUtf16(std::u16string_view text)
{
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t zeichen = text[i];
        if (istVorderes(zeichen) && i + 1 < text.size() && istHinteres(text[i + 1]))
            zeichen = ersterHinterEbene + ((zeichen - 0xD800) << 10) + (text[++i] - 0xDC00);
        else if (istVorderes(zeichen) || istHinteres(zeichen))
            zeichen = ersatz;
        appendUtf8(utf8, zeichen);
    }
    return utf8;
}

} // namespace quelvarn::odbc
