#include "platform/windows/wide_text.h"

#include "base/utf16.h"

namespace quelvarn {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::wstring wide(std::string_view utf8)
{
    const std::u16string utf16 = toUtf16(utf8);
    return {utf16.begin(), utf16.end()};
}

std::string narrow(std::wstring_view utf16)
{
    return fromUtf16(std::u16string(utf16.begin(), utf16.end()));
}

} // namespace quelvarn
