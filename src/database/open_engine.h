#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

namespace quelvarn {

class Engine;
class Patience;

// Opens an engine on a SQLite file (made when `create`) or on a postgresql:// address. `patience` is asked while
// another program or a server lets wait, also at the opening.
std::shared_ptr<Engine> openSqlite(const std::filesystem::path& path, bool create, Patience* patience = nullptr);
std::shared_ptr<Engine> openPostgres(std::string_view address, Patience* patience = nullptr);
// The Access file in place; null where no driver for Access is installed.
std::shared_ptr<Engine> openAccess(const std::filesystem::path& path);
// By a connection text of ODBC: DRIVER={...};...
std::shared_ptr<Engine> openOdbc(std::string_view connectionText);

} // namespace quelvarn
