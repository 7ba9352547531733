#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/open_engine.h"

// In place of postgresql/ where its library was not there when the program was built.
namespace quelvarn {

std::shared_ptr<Engine> openPostgres(std::string_view, Patience*)
{
    throw RuntimeError(FAULT_GENERAL, "PostgreSQL", "Dieses Programm wurde ohne PostgreSQL gebaut.");
}

} // namespace quelvarn
