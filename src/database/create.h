#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

namespace quelvarn {

class Engine;

// Opens an engine on a SQLite file (made when `neu`) or on a postgresql:// address.
std::shared_ptr<Engine> oeffneSqlite(const std::filesystem::path& pfad, bool neu);
std::shared_ptr<Engine> oeffnePostgres(std::string_view adresse);

// All tables of the register with their indexes, empty.
void legeRegisterAn(Engine& engine);

} // namespace quelvarn
