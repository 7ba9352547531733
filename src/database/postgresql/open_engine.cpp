#include "database/open_engine.h"

#include "database/postgresql/engine.h"

namespace quelvarn {

std::shared_ptr<Engine> openPostgres(std::string_view address, Patience* patience)
{
    return std::make_shared<postgresql::PostgresEngine>(address, patience);
}

} // namespace quelvarn
