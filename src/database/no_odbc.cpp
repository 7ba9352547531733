#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/new_database.h"

// In place of odbc/ where ODBC was not there when the program was built.
namespace quelvarn {

std::shared_ptr<Engine> oeffneOdbc(std::string_view)
{
    throw Laufzeitfehler(FEHLER_ALLGEMEIN, "ODBC", "Dieses Programm wurde ohne ODBC gebaut.");
}

std::shared_ptr<Engine> oeffneAccess(const std::filesystem::path&)
{
    return nullptr;
}

} // namespace quelvarn
