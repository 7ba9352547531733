#include "database/open_engine.h"

#include "base/file_path.h"
#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/odbc/engine.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

namespace quelvarn {
namespace {

// The driver of today's Access, and the older one of 32-bit Windows.
constexpr std::array<std::string_view, 2> ACCESS_DRIVER{"Microsoft Access Driver (*.mdb, *.accdb)",
                                                        "Microsoft Access Driver (*.mdb)"};

std::string accessDriver()
{
    const std::vector<std::string> existing = odbc::Environment().driver();
    for (const std::string_view driver : ACCESS_DRIVER)
        if (std::ranges::find(existing, driver) != existing.end())
            return std::string(driver);
    return {};
}

} // namespace

std::shared_ptr<Engine> openOdbc(std::string_view connectionText)
{
    return std::make_shared<odbc::OdbcEngine>(connectionText);
}

std::shared_ptr<Engine> openAccess(const std::filesystem::path& path)
{
    const std::string driver = accessDriver();
    if (driver.empty())
        return nullptr;
    const std::string file = utf8FromPath(path);
    if (file.find_first_of(";{}") != std::string::npos) // They would end the path, or begin another entry.
        throw RuntimeError(FAULT_GENERAL, "Access",
                           fmt::format("Der Pfad '{}' darf für den Treiber von Access weder \";\" noch geschweifte "
                                       "Klammern enthalten.",
                                       file));
    return std::make_shared<odbc::OdbcEngine>(fmt::format("DRIVER={{{}}};DBQ={}", driver, file), WatchedFile(path));
}

} // namespace quelvarn
