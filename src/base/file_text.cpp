#include "base/file_text.h"

#include "base/utf8.h"

namespace quelvarn {
namespace {

constexpr std::string_view UTF8_MARK = "\xEF\xBB\xBF";

bool isUtf8(std::string_view bytes)
{
    constexpr char32_t broken = 0xFFFD;
    for (std::size_t position = 0; position < bytes.size();)
        if (nextCodePoint(bytes, position) == broken)
            return false;
    return true;
}

} // namespace

std::string decodeFileText(std::string_view bytes)
{
    if (bytes.starts_with(UTF8_MARK))
        return std::string(bytes.substr(UTF8_MARK.size()));
    // Letters of the code page stand beside each other in no way that is UTF-8 as well, but by intent.
    return isUtf8(bytes) ? std::string(bytes) : fromWindows1252(bytes);
}

std::string encodeFileText(std::string_view utf8)
{
    std::string bytes = toWindows1252(utf8);
    return decodeFileText(bytes) == utf8 ? bytes : std::string(UTF8_MARK).append(utf8);
}

} // namespace quelvarn
