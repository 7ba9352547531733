#pragma once

#include "base/file_path.h"

#include <filesystem>
#include <string>

#ifdef _WIN32
#include <windows.h>
#endif

namespace quelvarn::test {

// As an ODBC driver takes it: those that Wine lends its programs are Linux programs.
#ifdef _WIN32
// Only Wine has the function; on Windows itself a driver takes the path as it is.
inline std::string driverPath(const std::filesystem::path& path)
{
    using UnixName = char*(CDECL*)(const wchar_t*);
    const FARPROC function = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name");
    const auto unixName = reinterpret_cast<UnixName>(reinterpret_cast<void*>(function));
    if (!unixName)
        return utf8FromPath(path);
    char* name = unixName(path.c_str());
    std::string text = name ? name : "";
    HeapFree(GetProcessHeap(), 0, name);
    return text;
}
#else
inline std::string driverPath(const std::filesystem::path& path)
{
    return utf8FromPath(path);
}
#endif

} // namespace quelvarn::test
