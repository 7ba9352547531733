#include "database/engine_transaction.h"

#include "base/runtime_error.h"

namespace quelvarn {

Enginetransaktion::Enginetransaktion(Engine& engine) : engine_(engine)
{
    engine_.beginne();
}

Enginetransaktion::~Enginetransaktion()
{
    if (!offen_)
        return;
    try {
        engine_.nimmZurueck();
    } catch (const Laufzeitfehler&) {
        // The connection is gone, and the changes with it.
    }
}

void Enginetransaktion::schliesseAb()
{
    engine_.schliesseAb();
    offen_ = false;
}

} // namespace quelvarn
