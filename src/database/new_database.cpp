#include "database/new_database.h"

#include "database/engine.h"

namespace quelvarn {

void legeRegisterAn(Engine& engine)
{
    engine.beginne();
    try {
        for (const Tabellenschema& tabelle : registerschema()) {
            engine.legeTabelleAn(tabelle);
            engine.legeIndexeAn(tabelle);
        }
        engine.schliesseAb();
    } catch (...) {
        engine.nimmZurueck();
        throw;
    }
}

} // namespace quelvarn
