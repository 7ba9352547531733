#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quelvarn {

// Paths of the system's own files as texts in UTF-8, whatever encoding the system itself has. The path's own string()
// and its construction from a std::string are right on some systems only.
std::filesystem::path pathFromUtf8(std::string_view text);
std::string utf8FromPath(const std::filesystem::path& path);

} // namespace quelvarn
