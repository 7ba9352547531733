#include "platform/windows/error.h"

#include "platform/file_error.h"
#include "platform/windows/wide_text.h"

#include <array>
#include <fmt/format.h>
#include <system_error>
#include <windows.h>

namespace quelvarn {
namespace {

struct Meaning
{
    DWORD fault;
    std::errc reason;
};

constexpr Meaning meanings[] = {
    {ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_DIRECTORY, std::errc::not_a_directory},
    {ERROR_INVALID_DRIVE, std::errc::no_such_device},
    {ERROR_NOT_READY, std::errc::no_such_device},
    {ERROR_BAD_UNIT, std::errc::no_such_device},
    {ERROR_BAD_NETPATH, std::errc::no_such_device},
    {ERROR_BAD_NET_NAME, std::errc::no_such_device},
    {ERROR_NETNAME_DELETED, std::errc::no_such_device},
    {ERROR_NETWORK_UNREACHABLE, std::errc::no_such_device},
    {ERROR_HOST_UNREACHABLE, std::errc::no_such_device},
    {ERROR_SEM_TIMEOUT, std::errc::no_such_device},
    {ERROR_ACCESS_DENIED, std::errc::permission_denied},
    {ERROR_NETWORK_ACCESS_DENIED, std::errc::permission_denied},
    {ERROR_LOGON_FAILURE, std::errc::permission_denied},
    {ERROR_PRIVILEGE_NOT_HELD, std::errc::permission_denied},
    {ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
    {ERROR_FILE_EXISTS, std::errc::file_exists},
    {ERROR_ALREADY_EXISTS, std::errc::file_exists},
    {ERROR_DIR_NOT_EMPTY, std::errc::directory_not_empty},
    {ERROR_DISK_FULL, std::errc::no_space_on_device},
    {ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    {ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
    {ERROR_CRC, std::errc::io_error},
    {ERROR_READ_FAULT, std::errc::io_error},
    {ERROR_WRITE_FAULT, std::errc::io_error},
    {ERROR_GEN_FAILURE, std::errc::io_error},
    {ERROR_IO_DEVICE, std::errc::io_error},
    {ERROR_UNEXP_NET_ERR, std::errc::io_error},
    {ERROR_TOO_MANY_OPEN_FILES, std::errc::too_many_files_open},
    {ERROR_SHARING_VIOLATION, std::errc::device_or_resource_busy},
    {ERROR_LOCK_VIOLATION, std::errc::device_or_resource_busy},
    {ERROR_DELETE_PENDING, std::errc::device_or_resource_busy},
    {ERROR_USER_MAPPED_FILE, std::errc::device_or_resource_busy},
    {ERROR_UNABLE_TO_REMOVE_REPLACED, std::errc::device_or_resource_busy},
    {ERROR_UNABLE_TO_MOVE_REPLACEMENT, std::errc::device_or_resource_busy},
    {ERROR_UNABLE_TO_MOVE_REPLACEMENT_2, std::errc::device_or_resource_busy},
    {ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
    {ERROR_BUFFER_OVERFLOW, std::errc::filename_too_long},
    {ERROR_INVALID_NAME, std::errc::invalid_argument},
    {ERROR_BAD_PATHNAME, std::errc::invalid_argument},
    {ERROR_NOT_SUPPORTED, std::errc::not_supported},
    {ERROR_INVALID_FUNCTION, std::errc::not_supported},
};

} // namespace

std::string windowsMessage(unsigned long fault)
{
    std::array<wchar_t, 1024> text{};
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, fault, 0,
                                        text.data(), static_cast<DWORD>(text.size()), nullptr);
    if (length == 0)
        return fmt::format("Fehler {}", fault);
    std::string message = narrow({text.data(), length});
    message.erase(message.find_last_not_of("\r\n. ") + 1);
    return message;
}

RuntimeError windowsFileFault(unsigned long fault, std::string_view documentPath)
{
    for (const Meaning& known : meanings) {
        if (known.fault == fault)
            return fileFault(known.reason, documentPath);
    }
    return {static_cast<int>(fault), "Dateisystem", fmt::format("{}: {}", windowsMessage(fault), documentPath)};
}

} // namespace quelvarn
