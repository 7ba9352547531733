#include "platform/windows/new_file.h"

#include "platform/file_error.h"
#include "platform/windows/error.h"
#include "platform/windows/open_file.h"

#include <atomic>
#include <system_error>
#include <windows.h>

namespace quelvarn {
namespace {

// Virus scanners and the system's index look into new files; they soon are done.
constexpr int attempts = 10;
constexpr DWORD pause = 50; // milliseconds

bool exists(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// Replacing a file asks nobody whether it may be written, so it is asked here.
void checkReplaceable(const std::wstring& path, std::string_view documentPath)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return;
    if (attributes & FILE_ATTRIBUTE_READONLY && !(attributes & FILE_ATTRIBUTE_DIRECTORY))
        throw fileFault(std::errc::permission_denied, documentPath);
    const OpenFile writable(path, OpenFile::Access::Write, documentPath);
}

// With the file's name as it is, whatever the case of the name by which it is called.
std::wstring asStored(const std::wstring& path)
{
    WIN32_FIND_DATAW entry{};
    const HANDLE search = FindFirstFileW(path.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return path;
    FindClose(search);
    return path.substr(0, path.rfind(L'\\') + 1) + entry.cFileName;
}

std::wstring behindLinks(const std::wstring& path)
{
    const HANDLE file = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return path;
    std::wstring real(32768, L'\0');
    const DWORD length = GetFinalPathNameByHandleW(file, real.data(), static_cast<DWORD>(real.size()), 0);
    CloseHandle(file);
    real.resize(length < real.size() ? length : 0);
    return real.empty() ? path : real;
}

// What a link leads to is replaced, not the link; and the file keeps its name.
std::wstring realPath(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return path;
    return attributes & FILE_ATTRIBUTE_REPARSE_POINT ? behindLinks(path) : asStored(path);
}

// A name that nobody has, on this computer or another one that works in the same folder.
std::wstring nameBeside(const std::wstring& target)
{
    static std::atomic<unsigned> counter = 0;
    const std::wstring folder = target.substr(0, target.rfind(L'\\') + 1);
    std::wstring name;
    do {
        name = folder + L"~neu-" + std::to_wstring(GetTickCount64()) + L"-" + std::to_wstring(GetCurrentProcessId()) +
               L"-" + std::to_wstring(++counter) + L".tmp";
    } while (exists(name));
    return name;
}

// Puts the new file in the target's place with the target's rights and time of creation, which not every file system
// can do; the error then. The old file gets a name meanwhile, as only so it never is lost.
DWORD swapIn(const std::wstring& path, const std::wstring& target)
{
    const std::wstring old = path + L".alt";
    constexpr DWORD flags = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
    const BOOL done = ReplaceFileW(target.c_str(), path.c_str(), old.c_str(), flags, nullptr, nullptr);
    const DWORD error = done ? NO_ERROR : GetLastError();
    if (exists(target))
        DeleteFileW(old.c_str());
    else
        MoveFileExW(old.c_str(), target.c_str(), 0);
    return error;
}

// The new file at the target's place, with the target's attributes; the error when it could not be.
DWORD takePlace(const std::wstring& path, const std::wstring& target)
{
    const DWORD attributes = GetFileAttributesW(target.c_str());
    const bool replaces = attributes != INVALID_FILE_ATTRIBUTES;
    if (replaces)
        SetFileAttributesW(path.c_str(), attributes);
    const DWORD error = replaces ? swapIn(path, target) : ERROR_NOT_SUPPORTED;
    constexpr DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (error == NO_ERROR || MoveFileExW(path.c_str(), target.c_str(), flags))
        return NO_ERROR;
    return replaces ? error : GetLastError();
}

bool mayPass(DWORD error)
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_ACCESS_DENIED ||
           (error >= ERROR_UNABLE_TO_REMOVE_REPLACED && error <= ERROR_UNABLE_TO_MOVE_REPLACEMENT_2);
}

} // namespace

NewFile::NewFile(const std::wstring& target, std::string_view documentPath)
    : target_(realPath(target)), documentPath_(documentPath)
{
    checkReplaceable(target_, documentPath);
}

NewFile::~NewFile()
{
    if (!path_.empty())
        DeleteFileW(path_.c_str());
}

void NewFile::write(std::string_view bytes)
{
    const std::wstring name = nameBeside(target_);
    OpenFile file(name, OpenFile::Access::CreateNew, documentPath_);
    path_ = name;
    file.write(bytes);
    file.flush();
}

void NewFile::copyFrom(const std::wstring& source)
{
    // The system copies within a server without sending the bytes to and fro.
    const std::wstring name = nameBeside(target_);
    if (!CopyFileW(source.c_str(), name.c_str(), TRUE))
        throw windowsFileFault(GetLastError(), documentPath_);
    path_ = name;
    SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_ARCHIVE);
    OpenFile(path_, OpenFile::Access::Write, documentPath_).flush();
}

void NewFile::replaceTarget()
{
    for (int attempt = 1;; ++attempt) {
        const DWORD error = takePlace(path_, target_);
        if (error == NO_ERROR)
            break;
        if (!mayPass(error) || attempt == attempts)
            throw windowsFileFault(error, documentPath_);
        Sleep(pause);
    }
    path_.clear();
}

} // namespace quelvarn
