#include "platform/linux/files.h"

#include "base/collation.h"
#include "platform/file_error.h"
#include "platform/linux/local_time.h"
#include "platform/linux/new_file.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace quelvarn {
namespace {

namespace fs = std::filesystem;

constexpr const char* archiveAttribute = "user.quelvarn.archiv";
constexpr mode_t writeBits = S_IWUSR | S_IWGRP | S_IWOTH;

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

void check(int result, std::string_view documentPath)
{
    if (result != 0)
        throw fileFault(lastError(), documentPath);
}

// An open file, closed when the object goes.
class OpenFile
{
public:
    OpenFile(const fs::path& path, std::string_view documentPath)
    {
        check(stat(path.c_str(), &status_), documentPath);
        if (S_ISDIR(status_.st_mode))
            throw fileFault(std::errc::is_a_directory, documentPath);
        handle_ = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        check(handle_ < 0 ? -1 : 0, documentPath);
    }
    ~OpenFile() { close(handle_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int handle() const { return handle_; }
    const struct stat& status() const { return status_; }

private:
    int handle_ = -1;
    struct stat status_ = {};
};

struct stat statusOf(const fs::path& path, std::string_view documentPath)
{
    struct stat status = {};
    check(stat(path.c_str(), &status), documentPath);
    return status;
}

// The mode of a file that is about to be replaced; nothing when there is none. Replacing a file asks nobody
// whether it may be written, so it is asked here.
std::optional<mode_t> modeOfReplaced(const fs::path& path, std::string_view documentPath)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        return std::nullopt;
    if (S_ISDIR(status.st_mode))
        throw fileFault(std::errc::is_a_directory, documentPath);
    if ((status.st_mode & writeBits) == 0)
        throw fileFault(std::errc::permission_denied, documentPath);
    check(access(path.c_str(), W_OK), documentPath);
    return status.st_mode;
}

// Makes the file at `path` anew; `fill` writes it.
template <typename Fill> void replaceFile(const fs::path& path, std::string_view documentPath, Fill fill)
{
    try {
        const auto mode = modeOfReplaced(path, documentPath);
        NewFile file(path);
        fill(file);
        if (mode)
            file.setMode(*mode);
        file.replaceTarget();
    } catch (const std::system_error& error) {
        throw fileFault(error.code(), documentPath);
    }
}

DateTime timeOf(const statx_timestamp& time)
{
    return localTime(static_cast<std::time_t>(time.tv_sec));
}

} // namespace

bool LinuxFiles::fileExists(std::string_view documentPath) const
{
    std::error_code ignored;
    const fs::file_status status = fs::status(systemPath(documentPath), ignored);
    return fs::exists(status) && !fs::is_directory(status);
}

bool LinuxFiles::folderExists(std::string_view documentPath) const
{
    std::error_code ignored;
    return fs::is_directory(systemPath(documentPath), ignored);
}

void LinuxFiles::createFolder(std::string_view documentPath)
{
    std::error_code error;
    const bool made = fs::create_directory(pathWithDrive(documentPath), error);
    if (error)
        throw fileFault(error, documentPath);
    if (!made)
        throw fileFault(std::errc::file_exists, documentPath);
}

std::vector<FolderEntry> LinuxFiles::content(std::string_view folder) const
{
    std::vector<FolderEntry> result;
    std::error_code error;
    fs::directory_iterator entry(pathWithDrive(folder), error);
    for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        result.push_back({entry->path().filename().string(), entry->is_directory(ignored)});
    }
    if (error)
        throw fileFault(error, folder);
    std::sort(result.begin(), result.end(), [](const FolderEntry& left, const FolderEntry& right) {
        const int order = compareText(left.name, right.name);
        return order != 0 ? order < 0 : left.name < right.name;
    });
    return result;
}

std::optional<FileAttributes> LinuxFiles::attribute(std::string_view documentPath) const
{
    const fs::path path = systemPath(documentPath);
    struct statx status = {};
    if (path.empty() || statx(AT_FDCWD, path.c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &status) != 0 ||
        S_ISDIR(status.stx_mode))
        return std::nullopt;
    FileAttributes result;
    result.readOnly = (status.stx_mode & writeBits) == 0;
    result.hidden = path.filename().native().starts_with('.');
    result.archive = getxattr(path.c_str(), archiveAttribute, nullptr, 0) >= 0;
    result.created = timeOf((status.stx_mask & STATX_BTIME) ? status.stx_btime : status.stx_mtime);
    result.changed = timeOf(status.stx_mtime);
    result.access = timeOf(status.stx_atime);
    result.size = static_cast<std::int64_t>(status.stx_size);
    return result;
}

void LinuxFiles::setReadOnly(std::string_view documentPath, bool set)
{
    const fs::path path = pathWithDrive(documentPath);
    const mode_t mode = statusOf(path, documentPath).st_mode & 07777;
    check(chmod(path.c_str(), set ? mode & ~writeBits : mode | S_IWUSR), documentPath);
}

void LinuxFiles::setArchive(std::string_view documentPath, bool set)
{
    const fs::path path = pathWithDrive(documentPath);
    const auto change = [&] {
        if (set)
            return setxattr(path.c_str(), archiveAttribute, "1", 1, 0);
        const int result = removexattr(path.c_str(), archiveAttribute);
        return result != 0 && errno == ENODATA ? 0 : result;
    };
    if (change() == 0)
        return;
    if (errno != EACCES)
        throw fileFault(lastError(), documentPath);
    // The system counts this as writing; a write-protected file is opened for it.
    const mode_t mode = statusOf(path, documentPath).st_mode & 07777;
    check(chmod(path.c_str(), mode | S_IWUSR), documentPath);
    const int result = change();
    const std::error_code error = lastError();
    check(chmod(path.c_str(), mode), documentPath);
    if (result != 0)
        throw fileFault(error, documentPath);
}

std::string LinuxFiles::read(std::string_view documentPath) const
{
    const OpenFile file(pathWithDrive(documentPath), documentPath);
    std::string content(static_cast<std::size_t>(file.status().st_size), '\0');
    std::size_t length = 0;
    while (true) {
        if (length == content.size())
            content.resize(content.size() + 4096); // It may have grown meanwhile.
        const ssize_t count = ::read(file.handle(), content.data() + length, content.size() - length);
        if (count < 0 && errno == EINTR)
            continue;
        check(count < 0 ? -1 : 0, documentPath);
        if (count == 0)
            break;
        length += static_cast<std::size_t>(count);
    }
    content.resize(length);
    return content;
}

void LinuxFiles::write(std::string_view documentPath, std::string_view content)
{
    replaceFile(pathWithDrive(documentPath), documentPath, [&](NewFile& file) { file.write(content); });
}

// Like every copy of a file here: the time of its last change comes along, rights do not.
void LinuxFiles::copy(std::string_view from, std::string_view to)
{
    const OpenFile source(pathWithDrive(from), from);
    replaceFile(pathWithDrive(to), to, [&](NewFile& file) {
        file.copyFrom(source.handle());
        file.setModified(source.status().st_mtim);
    });
}

void LinuxFiles::remove(std::string_view documentPath)
{
    const fs::path path = pathWithDrive(documentPath);
    const mode_t mode = statusOf(path, documentPath).st_mode;
    if (S_ISDIR(mode))
        throw fileFault(std::errc::is_a_directory, documentPath);
    if ((mode & writeBits) == 0)
        throw fileFault(std::errc::permission_denied, documentPath);
    check(unlink(path.c_str()), documentPath);
}

fs::path LinuxFiles::systemPath(std::string_view documentPath) const
{
    return drives_.systemPath(documentPath);
}

fs::path LinuxFiles::pathWithDrive(std::string_view documentPath) const
{
    fs::path path = systemPath(documentPath);
    if (path.empty())
        throw fileFault(std::errc::no_such_device, documentPath);
    return path;
}

} // namespace quelvarn
