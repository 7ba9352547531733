#include "database/new_database.h"

#include "database/engine.h"

namespace quelvarn {

void createRegister(Engine& engine)
{
    engine.begin();
    try {
        for (const TableSchema& table : registerSchema()) {
            engine.createTable(table);
            engine.createIndexes(table);
        }
        engine.commit();
    } catch (...) {
        engine.rollBack();
        throw;
    }
}

} // namespace quelvarn
