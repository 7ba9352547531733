#pragma once

#include "base/date_time.h"

namespace quelvarn {

class Uhr
{
public:
    virtual ~Uhr() = default;
    // Local time.
    virtual Zeitpunkt jetzt() const = 0;
};

} // namespace quelvarn
