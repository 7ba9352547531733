#include "tools/import/access_header.h"

#include "base/file_path.h"
#include "tools/console.h"

#include <cstdint>
#include <fmt/format.h>
#include <fstream>
#include <string>
#include <string_view>

namespace quelvarn::tools {

namespace {

constexpr std::size_t HEADER_LENGTH = 24;
constexpr std::size_t ADDRESS_CODE_FROM = 4;
constexpr std::size_t VERSION_FROM = 20; // 0 is Jet 3, from 1 on pages are twice as long.

} // namespace

void checkAccessHeader(const std::filesystem::path& file)
{
    std::error_code fault;
    if (!std::filesystem::exists(file, fault))
        throw toolFault(fmt::format("Die Quelle '{}' gibt es nicht.", utf8FromPath(file)));
    if (!std::filesystem::is_regular_file(file, fault))
        throw toolFault(fmt::format("Die Quelle '{}' ist keine Datei.", utf8FromPath(file)));
    const auto size = std::filesystem::file_size(file, fault);
    if (size == 0)
        throw toolFault(fmt::format("Die Quelle '{}' ist leer.", utf8FromPath(file)));
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw toolFault(fmt::format("Die Quelle '{}' lässt sich nicht lesen.", utf8FromPath(file)));
    std::string heading(HEADER_LENGTH, '\0');
    stream.read(heading.data(), static_cast<std::streamsize>(heading.size()));
    const std::string_view addressCode = std::string_view(heading).substr(ADDRESS_CODE_FROM);
    if (!heading.starts_with(std::string_view("\0\1\0\0", 4)) ||
        (!addressCode.starts_with("Standard Jet DB") && !addressCode.starts_with("Standard ACE DB")))
        throw toolFault(fmt::format("'{}' ist keine Access-Datenbank.", utf8FromPath(file)));
    const std::uintmax_t page = heading[VERSION_FROM] == 0 ? 2048 : 4096;
    if (size % page != 0)
        throw toolFault(fmt::format("Die Access-Datei '{}' ist abgeschnitten: ihr Ende fehlt.", utf8FromPath(file)));
}

} // namespace quelvarn::tools
