#include "tools/process.h"

#include "platform/windows/wide_text.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// After windows.h.
#include <shellapi.h>

namespace quelvarn::tools {

namespace {

// A console of old shows the signs for erasing a line as they are.
bool loeschtZeilen(DWORD strom)
{
    const HANDLE konsole = GetStdHandle(strom);
    DWORD art = 0;
    return GetConsoleMode(konsole, &art) && SetConsoleMode(konsole, art | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

} // namespace

Prozess::Prozess()
{
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    terminal_ = _isatty(_fileno(stderr)) && loeschtZeilen(STD_ERROR_HANDLE);
    const UINT vorher = GetConsoleOutputCP();
    if (vorher != 0 && vorher != CP_UTF8 && SetConsoleOutputCP(CP_UTF8))
        zeichensatzVorher_ = vorher;
}

Prozess::~Prozess()
{
    if (zeichensatzVorher_ != 0) // The console outlives the program.
        SetConsoleOutputCP(zeichensatzVorher_);
}

// Asked of the system: what main gets may be in another encoding, with every "*" replaced by names of files.
std::vector<std::string> Prozess::worte(int, const char* const*)
{
    std::vector<std::string> ergebnis;
    int anzahl = 0;
    if (LPWSTR* const worte = CommandLineToArgvW(GetCommandLineW(), &anzahl)) {
        for (int i = 1; i < anzahl; ++i)
            ergebnis.push_back(narrow(worte[i]));
        LocalFree(worte);
    }
    return ergebnis;
}

int prozessnummer()
{
    return static_cast<int>(GetCurrentProcessId());
}

bool processRuns(int number)
{
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(number));
    if (!process)
        return GetLastError() != ERROR_INVALID_PARAMETER; // Whoever may not ask is told that it is there.
    const bool runs = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    CloseHandle(process);
    return runs;
}

bool openFilesCanBeReplaced()
{
    return false;
}

} // namespace quelvarn::tools
