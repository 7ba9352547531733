#include "database/open_engine.h"

#include "database/sqlite/engine.h"

namespace quelvarn {

std::shared_ptr<Engine> openSqlite(const std::filesystem::path& path, bool create, Patience* patience)
{
    return std::make_shared<sqlite::SqliteEngine>(path, create, patience);
}

} // namespace quelvarn
