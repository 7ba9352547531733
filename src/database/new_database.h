#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

namespace quelvarn {

class Engine;
class Patience;

// Opens an engine on a SQLite file (made when `neu`) or on a postgresql:// address. `patience` is asked while another
// program or a server lets wait, also at the opening.
std::shared_ptr<Engine> oeffneSqlite(const std::filesystem::path& pfad, bool neu, Patience* patience = nullptr);
std::shared_ptr<Engine> oeffnePostgres(std::string_view adresse, Patience* patience = nullptr);
// The Access file in place; null where no driver for Access is installed.
std::shared_ptr<Engine> oeffneAccess(const std::filesystem::path& pfad);
// By a connection text of ODBC: DRIVER={...};...
std::shared_ptr<Engine> oeffneOdbc(std::string_view verbindungstext);

// All tables of the register with their indexes, empty.
void legeRegisterAn(Engine& engine);

} // namespace quelvarn
