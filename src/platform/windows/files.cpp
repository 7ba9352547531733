#include "platform/windows/files.h"

#include "base/collation.h"
#include "platform/file_error.h"
#include "platform/windows/error.h"
#include "platform/windows/full_path.h"
#include "platform/windows/local_time.h"
#include "platform/windows/new_file.h"
#include "platform/windows/open_file.h"
#include "platform/windows/wide_text.h"

#include <algorithm>
#include <system_error>
#include <windows.h>

namespace quelvarn {
namespace {

// From here on the system wants the form for long paths; a folder must leave room for a short name in it.
constexpr std::size_t longFrom = MAX_PATH - 12;

void check(BOOL success, std::string_view documentPath)
{
    if (!success)
        throw windowsFileFault(GetLastError(), documentPath);
}

bool isFolder(DWORD attributes)
{
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

DWORD attributesOf(const std::wstring& path, std::string_view documentPath)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    check(attributes != INVALID_FILE_ATTRIBUTES, documentPath);
    return attributes;
}

// Asks the list of drives, never the drive itself.
bool isDriveMissing(const std::wstring& path)
{
    constexpr std::wstring_view prefix = L"\\\\?\\";
    const std::size_t start = path.starts_with(prefix) ? prefix.size() : 0;
    if (path.size() < start + 2 || path[start + 1] != L':')
        return false;
    return !(GetLogicalDrives() >> ((path[start] | 0x20) - L'a') & 1);
}

// The entries of a folder, one after the other.
class Search
{
public:
    Search(const std::wstring& folder, std::string_view documentPath)
    {
        const std::wstring pattern = folder + (folder.ends_with(L'\\') ? L"*" : L"\\*");
        handle_ = FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &entry_, FindExSearchNameMatch, nullptr,
                                   FIND_FIRST_EX_LARGE_FETCH);
        if (handle_ != INVALID_HANDLE_VALUE)
            return;
        // An empty drive has no entries at all, other folders have at least themselves.
        const DWORD error = GetLastError();
        if (error != ERROR_FILE_NOT_FOUND || !isFolder(GetFileAttributesW(folder.c_str())))
            throw windowsFileFault(error, documentPath);
    }
    ~Search()
    {
        if (handle_ != INVALID_HANDLE_VALUE)
            FindClose(handle_);
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    bool any() const { return handle_ != INVALID_HANDLE_VALUE; }
    const WIN32_FIND_DATAW& entry() const { return entry_; }
    bool next(std::string_view documentPath)
    {
        const BOOL found = FindNextFileW(handle_, &entry_);
        check(found || GetLastError() == ERROR_NO_MORE_FILES, documentPath);
        return found;
    }

private:
    HANDLE handle_;
    WIN32_FIND_DATAW entry_{};
};

} // namespace

bool WindowsFiles::fileExists(std::string_view documentPath) const
{
    const DWORD attributes = GetFileAttributesW(systemName(documentPath).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !isFolder(attributes);
}

bool WindowsFiles::folderExists(std::string_view documentPath) const
{
    return isFolder(GetFileAttributesW(systemName(documentPath).c_str()));
}

void WindowsFiles::createFolder(std::string_view documentPath)
{
    check(CreateDirectoryW(nameWithDrive(documentPath).c_str(), nullptr), documentPath);
}

std::vector<FolderEntry> WindowsFiles::content(std::string_view folder) const
{
    std::vector<FolderEntry> result;
    Search search(nameWithDrive(folder), folder);
    for (bool found = search.any(); found; found = search.next(folder)) {
        const std::wstring_view name = search.entry().cFileName;
        if (name != L"." && name != L"..")
            result.push_back({narrow(name), isFolder(search.entry().dwFileAttributes)});
    }
    std::sort(result.begin(), result.end(), [](const FolderEntry& left, const FolderEntry& right) {
        const int order = compareText(left.name, right.name);
        return order != 0 ? order < 0 : left.name < right.name;
    });
    return result;
}

std::optional<FileAttributes> WindowsFiles::attribute(std::string_view documentPath) const
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(systemName(documentPath).c_str(), GetFileExInfoStandard, &data) ||
        isFolder(data.dwFileAttributes))
        return std::nullopt;
    FileAttributes result;
    result.readOnly = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    result.hidden = (data.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    result.archive = (data.dwFileAttributes & FILE_ATTRIBUTE_ARCHIVE) != 0;
    result.created = localTime(data.ftCreationTime);
    result.changed = localTime(data.ftLastWriteTime);
    result.access = localTime(data.ftLastAccessTime);
    result.size = static_cast<std::int64_t>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    return result;
}

void WindowsFiles::setReadOnly(std::string_view documentPath, bool set)
{
    setAttribute(documentPath, FILE_ATTRIBUTE_READONLY, set);
}

void WindowsFiles::setArchive(std::string_view documentPath, bool set)
{
    setAttribute(documentPath, FILE_ATTRIBUTE_ARCHIVE, set);
}

void WindowsFiles::setAttribute(std::string_view documentPath, unsigned long attribute, bool set)
{
    const std::wstring path = nameWithDrive(documentPath);
    const DWORD before = attributesOf(path, documentPath);
    const DWORD after = set ? before | attribute : before & ~attribute;
    if (after != before)
        check(SetFileAttributesW(path.c_str(), after == 0 ? FILE_ATTRIBUTE_NORMAL : after), documentPath);
}

std::string WindowsFiles::read(std::string_view documentPath) const
{
    return OpenFile(nameWithDrive(documentPath), OpenFile::Access::Read, documentPath).readAll();
}

void WindowsFiles::write(std::string_view documentPath, std::string_view content)
{
    NewFile file(nameWithDrive(documentPath), documentPath);
    file.write(content);
    file.replaceTarget();
}

// Like every copy of a file here: the time of its last change comes along, rights do not.
void WindowsFiles::copy(std::string_view from, std::string_view to)
{
    const std::wstring source = nameWithDrive(from);
    // What keeps it from being read is its own fault, and it stays until it is copied.
    [[maybe_unused]] const OpenFile readable(source, OpenFile::Access::Read, from);
    NewFile file(nameWithDrive(to), to);
    file.copyFrom(source);
    file.replaceTarget();
}

void WindowsFiles::remove(std::string_view documentPath)
{
    const std::wstring path = nameWithDrive(documentPath);
    const DWORD attributes = attributesOf(path, documentPath);
    if (isFolder(attributes))
        throw fileFault(std::errc::is_a_directory, documentPath);
    if (attributes & FILE_ATTRIBUTE_READONLY)
        throw fileFault(std::errc::permission_denied, documentPath);
    check(DeleteFileW(path.c_str()), documentPath);
}

std::filesystem::path WindowsFiles::systemPath(std::string_view documentPath) const
{
    std::wstring path = fullPath(documentPath);
    return path.size() < longFrom ? path : longPath(path);
}

std::wstring WindowsFiles::systemName(std::string_view documentPath) const
{
    return longPath(systemPath(documentPath).native());
}

std::wstring WindowsFiles::nameWithDrive(std::string_view documentPath) const
{
    std::wstring path = systemName(documentPath);
    if (path.empty() || isDriveMissing(path))
        throw fileFault(std::errc::no_such_device, documentPath);
    return path;
}

} // namespace quelvarn
