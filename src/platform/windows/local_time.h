#pragma once

#include "base/date_time.h"

#include <windows.h>

namespace quelvarn {

inline Zeitpunkt zeitpunktAus(const SYSTEMTIME& time)
{
    return Zeitpunkt::aus({time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond});
}

// What the clock on the wall showed at this moment, by the summer time of that day.
inline Zeitpunkt localTime(const FILETIME& moment)
{
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    if (!FileTimeToSystemTime(&moment, &universal) || !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
        return {};
    return zeitpunktAus(local);
}

} // namespace quelvarn
