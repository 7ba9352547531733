#include "platform/windows/world.h"

#include "base/utf8.h"
#include "platform/files.h"
#include "platform/windows/local_time.h"
#include "platform/windows/wide_text.h"

#include <array>
#include <optional>
#include <shellapi.h>
#include <windows.h>
#include <winnetwk.h>

namespace quelvarn {
namespace {

constexpr std::size_t longestName = 25;

// A user's name may have 256 characters, paths of shares and folders more.
using Buffer = std::array<wchar_t, 1024>;

// The share that is mapped to this letter, also when it cannot be reached; nothing when there is none.
std::optional<std::string> shareOf(wchar_t letter)
{
    const wchar_t drive[] = {letter, L':', L'\0'};
    Buffer name{};
    auto length = static_cast<DWORD>(name.size());
    const DWORD result = WNetGetConnectionW(drive, name.data(), &length);
    if (result != NO_ERROR && result != ERROR_CONNECTION_UNAVAIL)
        return std::nullopt;
    return narrow(name.data());
}

} // namespace

std::string shortenedName(std::wstring_view name)
{
    return std::string(leftCharacters(narrow(name), longestName));
}

DateTime WindowsClock::now() const
{
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return dateTimeFrom(now);
}

std::string WindowsEnvironment::computerName() const
{
    Buffer name{};
    auto length = static_cast<DWORD>(name.size());
    return GetComputerNameW(name.data(), &length) ? shortenedName(name.data()) : "";
}

std::string WindowsEnvironment::userName() const
{
    Buffer name{};
    auto length = static_cast<DWORD>(name.size());
    return GetUserNameW(name.data(), &length) ? shortenedName(name.data()) : "";
}

SystemVersion WindowsEnvironment::systemVersion() const
{
    // GetVersionEx tells a program without a manifest an older version.
    using GetVersionFunction = LONG(WINAPI*)(OSVERSIONINFOW*);
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    const auto getVersion = reinterpret_cast<GetVersionFunction>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion")));
    if (getVersion)
        getVersion(&version);
    return {std::to_string(version.dwMajorVersion), std::to_string(version.dwMinorVersion), VER_PLATFORM_WIN32_NT};
}

std::string WindowsEnvironment::systemDrive() const
{
    Buffer folder{};
    GetSystemWindowsDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return narrow(std::wstring_view(folder.data()).substr(0, 2));
}

std::vector<Drive> WindowsDrives::list() const
{
    std::vector<Drive> result;
    const DWORD present = GetLogicalDrives();
    for (int i = 0; i < 26; ++i) {
        const auto letter = static_cast<char>('A' + i);
        const auto share = shareOf(static_cast<wchar_t>(letter));
        if (share || (present >> i & 1))
            result.push_back({std::string(1, letter) + ":", share.value_or("")});
    }
    return result;
}

bool WindowsDefaultApplication::open(std::string_view documentPath)
{
    if (!files_.fileExists(documentPath) && !files_.folderExists(documentPath))
        return false;
    const std::wstring path = files_.systemPath(documentPath).native();
    SHELLEXECUTEINFOW order{};
    order.cbSize = sizeof order;
    order.fMask = SEE_MASK_FLAG_NO_UI;
    order.lpFile = path.c_str();
    order.nShow = SW_SHOWNORMAL;
    return ShellExecuteExW(&order);
}

} // namespace quelvarn
