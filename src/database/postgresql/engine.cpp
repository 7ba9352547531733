#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/create.h"

namespace quelvarn {

std::shared_ptr<Engine> oeffnePostgres(std::string_view)
{
    throw Laufzeitfehler(FEHLER_ALLGEMEIN, "PostgreSQL", "PostgreSQL kann noch nicht geöffnet werden.");
}

} // namespace quelvarn
