#include "platform/file_identity.h"

#include <windows.h>

namespace quelvarn {
namespace {

std::uint64_t joined(DWORD high, DWORD low)
{
    return (static_cast<std::uint64_t>(high) << 32) | low;
}

} // namespace

std::optional<FileIdentity> findFileIdentity(const std::filesystem::path& path, std::error_code& error)
{
    error.clear();
    // Asks for no right at all, so that it also succeeds while others hold the file.
    const HANDLE file = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    BY_HANDLE_FILE_INFORMATION about{};
    const bool told = file != INVALID_HANDLE_VALUE && GetFileInformationByHandle(file, &about);
    const DWORD reason = told ? NO_ERROR : GetLastError();
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    // The time of creation is not asked for: file servers that keep none tell that of the last change instead.
    if (told)
        return FileIdentity{about.dwVolumeSerialNumber, joined(about.nFileIndexHigh, about.nFileIndexLow), 0};
    if (reason != ERROR_FILE_NOT_FOUND && reason != ERROR_PATH_NOT_FOUND)
        error.assign(static_cast<int>(reason), std::system_category());
    return std::nullopt;
}

} // namespace quelvarn
