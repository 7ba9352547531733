#include "app/tell_caller.h"

#include "app/command_line.h"
#include "platform/windows/wide_text.h"

#include <cstdlib>
#include <windows.h>

namespace quelvarn {

namespace {

bool isUsable(HANDLE output)
{
    return output != nullptr && output != INVALID_HANDLE_VALUE && GetFileType(output) != FILE_TYPE_UNKNOWN;
}

// Into a file or pipe that the caller gave.
bool writeToOutput(const Reply& reply)
{
    HANDLE output = GetStdHandle(reply.exitCode == EXIT_SUCCESS ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    DWORD written = 0;
    return isUsable(output) &&
           WriteFile(output, reply.text.data(), static_cast<DWORD>(reply.text.size()), &written, nullptr) != 0;
}

// A program with windows has no console of its own; the caller may have one.
bool writeToConsole(const std::wstring& text)
{
    if (AttachConsole(ATTACH_PARENT_PROCESS) == 0)
        return false;
    HANDLE console =
        CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (console == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool done = WriteConsoleW(console, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) != 0;
    CloseHandle(console);
    return done;
}

} // namespace

void tellCaller(const Reply& reply)
{
    const std::wstring text = wide(reply.text);
    if (writeToOutput(reply) || writeToConsole(L"\r\n" + text))
        return;
    MessageBoxW(nullptr, text.c_str(), L"Quelvarn", reply.exitCode == EXIT_SUCCESS ? MB_OK : MB_OK | MB_ICONWARNING);
}

} // namespace quelvarn
