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

constexpr std::size_t KOPFLAENGE = 24;
constexpr std::size_t KENNUNG_AB = 4;
constexpr std::size_t VERSION_AB = 20; // 0 is Jet 3, from 1 on pages are twice as long.

} // namespace

void pruefeAccessKopf(const std::filesystem::path& datei)
{
    std::error_code fehler;
    if (!std::filesystem::exists(datei, fehler))
        throw werkzeugfehler(fmt::format("Die Quelle '{}' gibt es nicht.", utf8FromPath(datei)));
    if (!std::filesystem::is_regular_file(datei, fehler))
        throw werkzeugfehler(fmt::format("Die Quelle '{}' ist keine Datei.", utf8FromPath(datei)));
    const auto groesse = std::filesystem::file_size(datei, fehler);
    if (groesse == 0)
        throw werkzeugfehler(fmt::format("Die Quelle '{}' ist leer.", utf8FromPath(datei)));
    std::ifstream strom(datei, std::ios::binary);
    if (!strom)
        throw werkzeugfehler(fmt::format("Die Quelle '{}' lässt sich nicht lesen.", utf8FromPath(datei)));
    std::string kopf(KOPFLAENGE, '\0');
    strom.read(kopf.data(), static_cast<std::streamsize>(kopf.size()));
    const std::string_view kennung = std::string_view(kopf).substr(KENNUNG_AB);
    if (!kopf.starts_with(std::string_view("\0\1\0\0", 4)) ||
        (!kennung.starts_with("Standard Jet DB") && !kennung.starts_with("Standard ACE DB")))
        throw werkzeugfehler(fmt::format("'{}' ist keine Access-Datenbank.", utf8FromPath(datei)));
    const std::uintmax_t seite = kopf[VERSION_AB] == 0 ? 2048 : 4096;
    if (groesse % seite != 0)
        throw werkzeugfehler(
            fmt::format("Die Access-Datei '{}' ist abgeschnitten: ihr Ende fehlt.", utf8FromPath(datei)));
}

} // namespace quelvarn::tools
