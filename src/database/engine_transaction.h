#pragma once

#include "database/engine.h"

namespace quelvarn {

// A transaction of an engine that takes everything back at its end, unless it was closed before.
class EngineTransaction
{
public:
    explicit EngineTransaction(Engine& engine);
    ~EngineTransaction();
    EngineTransaction(const EngineTransaction&) = delete;
    EngineTransaction& operator=(const EngineTransaction&) = delete;

    void commit();

private:
    Engine& engine_;
    bool open_ = true;
};

} // namespace quelvarn
