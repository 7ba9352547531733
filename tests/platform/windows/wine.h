#pragma once

#include <windows.h>

namespace quelvarn {

// Some of the system's services are there in name only.
inline bool underWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

} // namespace quelvarn
