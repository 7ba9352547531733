#pragma once

#include "database/engine.h"

namespace quelvarn {

// A transaction of an engine that takes everything back at its end, unless it was closed before.
class Enginetransaktion
{
public:
    explicit Enginetransaktion(Engine& engine);
    ~Enginetransaktion();
    Enginetransaktion(const Enginetransaktion&) = delete;
    Enginetransaktion& operator=(const Enginetransaktion&) = delete;

    void schliesseAb();

private:
    Engine& engine_;
    bool offen_ = true;
};

} // namespace quelvarn
