#pragma once

#include "base/date_time.h"

#include <windows.h>

namespace quelvarn {

inline DateTime dateTimeFrom(const SYSTEMTIME& time)
{
    return DateTime::from({time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond});
}

// What the clock on the wall showed at this moment, by the summer time of that day.
inline DateTime localTime(const FILETIME& moment)
{
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    if (!FileTimeToSystemTime(&moment, &universal) || !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
        return {};
    return dateTimeFrom(local);
}

} // namespace quelvarn
