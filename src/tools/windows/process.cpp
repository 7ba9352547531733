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
bool removesRows(DWORD stream)
{
    const HANDLE console = GetStdHandle(stream);
    DWORD kind = 0;
    return GetConsoleMode(console, &kind) && SetConsoleMode(console, kind | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

} // namespace

Process::Process()
{
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    terminal_ = _isatty(_fileno(stderr)) && removesRows(STD_ERROR_HANDLE);
    const UINT before = GetConsoleOutputCP();
    if (before != 0 && before != CP_UTF8 && SetConsoleOutputCP(CP_UTF8))
        charsetBefore_ = before;
}

Process::~Process()
{
    if (charsetBefore_ != 0) // The console outlives the program.
        SetConsoleOutputCP(charsetBefore_);
}

// Asked of the system: what main gets may be in another encoding, with every "*" replaced by names of files.
std::vector<std::string> Process::words(int, const char* const*)
{
    std::vector<std::string> result;
    int count = 0;
    if (LPWSTR* const words = CommandLineToArgvW(GetCommandLineW(), &count)) {
        for (int i = 1; i < count; ++i)
            result.push_back(narrow(words[i]));
        LocalFree(words);
    }
    return result;
}

int processNumber()
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
