#include "database/engine_transaction.h"

#include "base/runtime_error.h"

namespace quelvarn {

EngineTransaction::EngineTransaction(Engine& engine) : engine_(engine)
{
    engine_.begin();
}

EngineTransaction::~EngineTransaction()
{
    if (!open_)
        return;
    try {
        engine_.rollBack();
    } catch (const RuntimeError&) {
        // The connection is gone, and the changes with it.
    }
}

void EngineTransaction::commit()
{
    engine_.commit();
    open_ = false;
}

} // namespace quelvarn
