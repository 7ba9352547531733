#pragma once

#include "base/date_time.h"

#include <ctime>

namespace quelvarn {

// What the clock on the wall shows at this moment.
inline DateTime localTime(std::time_t moment)
{
    std::tm parts{};
    localtime_r(&moment, &parts);
    // A leap second counts as the one before it.
    const int second = parts.tm_sec > 59 ? 59 : parts.tm_sec;
    return DateTime::from({parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, second});
}

} // namespace quelvarn
