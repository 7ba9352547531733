#include "base/file_path.h"
#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/new_database.h"
#include "database/odbc/engine.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

namespace quelvarn {
namespace {

// The driver of today's Access, and the older one of 32-bit Windows.
constexpr std::array<std::string_view, 2> ACCESS_TREIBER{"Microsoft Access Driver (*.mdb, *.accdb)",
                                                         "Microsoft Access Driver (*.mdb)"};

std::string accessTreiber()
{
    const std::vector<std::string> vorhandene = odbc::Umgebung().treiber();
    for (const std::string_view treiber : ACCESS_TREIBER)
        if (std::ranges::find(vorhandene, treiber) != vorhandene.end())
            return std::string(treiber);
    return {};
}

} // namespace

std::shared_ptr<Engine> oeffneOdbc(std::string_view verbindungstext)
{
    return std::make_shared<odbc::OdbcEngine>(verbindungstext);
}

std::shared_ptr<Engine> oeffneAccess(const std::filesystem::path& pfad)
{
    const std::string treiber = accessTreiber();
    if (treiber.empty())
        return nullptr;
    const std::string datei = utf8FromPath(pfad);
    if (datei.find_first_of(";{}") != std::string::npos) // They would end the path, or begin another entry.
        throw Laufzeitfehler(FEHLER_ALLGEMEIN, "Access",
                             fmt::format("Der Pfad '{}' darf für den Treiber von Access weder \";\" noch geschweifte "
                                         "Klammern enthalten.",
                                         datei));
    return std::make_shared<odbc::OdbcEngine>(fmt::format("DRIVER={{{}}};DBQ={}", treiber, datei), WatchedFile(pfad));
}

} // namespace quelvarn
