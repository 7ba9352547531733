#include "database/odbc_drivers.h"

#include <windows.h>

namespace quelvarn::test {

// Only Wine has the function; on Windows itself a driver takes the path as it is.
std::string treiberPfad(const std::filesystem::path& pfad)
{
    using UnixName = char*(CDECL*)(const wchar_t*);
    const FARPROC funktion = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name");
    const auto unixName = reinterpret_cast<UnixName>(reinterpret_cast<void*>(funktion));
    if (!unixName)
        return pfad.string();
    char* name = unixName(pfad.c_str());
    std::string text = name ? name : "";
    HeapFree(GetProcessHeap(), 0, name);
    return text;
}

} // namespace quelvarn::test
