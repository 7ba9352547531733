#include "platform/windows/wide_text.h"

#include "base/utf8.h"

namespace quelvarn {
namespace {

static_assert(sizeof(wchar_t) == 2);

constexpr char32_t replacement = 0xFFFD;

bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

} // namespace

std::wstring wide(std::string_view utf8)
{
    std::wstring result;
    result.reserve(utf8.size());
    for (std::size_t position = 0; position < utf8.size();) {
        const char32_t character = nextCodePoint(utf8, position);
        if (character < 0x10000) {
            result += static_cast<wchar_t>(character);
        } else {
            result += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
            result += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        }
    }
    return result;
}

std::string narrow(std::wstring_view utf16)
{
    std::string result;
    result.reserve(utf16.size());
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        const char32_t unit = utf16[i];
        if (isHighSurrogate(unit) && i + 1 < utf16.size() && isLowSurrogate(utf16[i + 1]))
            appendUtf8(result, 0x10000 + ((unit - 0xD800) << 10) + (utf16[++i] - 0xDC00));
        else
            appendUtf8(result, isHighSurrogate(unit) || isLowSurrogate(unit) ? replacement : unit);
    }
    return result;
}

} // namespace quelvarn
