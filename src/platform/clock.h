#pragma once

#include "base/date_time.h"

namespace quelvarn {

class Clock
{
public:
    virtual ~Clock() = default;
    // Local time.
    virtual DateTime now() const = 0;
};

} // namespace quelvarn
