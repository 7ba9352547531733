#include "base/file_path.h"

namespace quelvarn {

std::filesystem::path pathFromUtf8(std::string_view text)
{
    return {std::u8string(text.begin(), text.end())};
}

std::string utf8FromPath(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace quelvarn
