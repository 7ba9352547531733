#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/open_engine.h"

// In place of odbc/ where ODBC was not there when the program was built.
namespace quelvarn {

std::shared_ptr<Engine> openOdbc(std::string_view)
{
    throw RuntimeError(FAULT_GENERAL, "ODBC", "Dieses Programm wurde ohne ODBC gebaut.");
}

std::shared_ptr<Engine> openAccess(const std::filesystem::path&)
{
    return nullptr;
}

} // namespace quelvarn
