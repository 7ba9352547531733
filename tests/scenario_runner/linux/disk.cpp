#include "scenario_runner/disk.h"

#include <atomic>
#include <cerrno>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

// The functions of the C library by which everything in this process writes to files stand here once more, and the
// program, its libraries and the database engine are linked to these. They ask whether the disk is full first.

namespace {

std::atomic<bool> full = false;
std::string fullFolder; // With a slash behind it.

bool liesOnFullDisk(int file)
{
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    char path[4096];
    const ssize_t length = readlink(link.c_str(), path, sizeof path);
    return length > 0 && std::string(path, static_cast<std::size_t>(length)).starts_with(fullFolder);
}

// What is there already may be written over, as on a real disk.
bool hasNoRoom(int file, off_t from, std::size_t count)
{
    if (!full || !liesOnFullDisk(file))
        return false;
    struct stat status = {};
    if (fstat(file, &status) == 0 && from + static_cast<off_t>(count) <= status.st_size)
        return false;
    errno = ENOSPC;
    return true;
}

ssize_t writeAt(int file, const void* bytes, std::size_t count, off_t from)
{
    return hasNoRoom(file, from, count) ? -1 : syscall(SYS_pwrite64, file, bytes, count, from);
}

} // namespace

extern "C" {

ssize_t write(int file, const void* bytes, std::size_t count)
{
    return full && hasNoRoom(file, lseek(file, 0, SEEK_CUR), count) ? -1 : syscall(SYS_write, file, bytes, count);
}

ssize_t writev(int file, const iovec* pieces, int number)
{
    std::size_t count = 0;
    for (int i = 0; i < number; ++i)
        count += pieces[i].iov_len;
    return full && hasNoRoom(file, lseek(file, 0, SEEK_CUR), count) ? -1 : syscall(SYS_writev, file, pieces, number);
}

ssize_t pwrite(int file, const void* bytes, std::size_t count, off_t from)
{
    return writeAt(file, bytes, count, from);
}

ssize_t pwrite64(int file, const void* bytes, std::size_t count, off64_t from)
{
    return writeAt(file, bytes, count, from);
}

} // extern "C"

namespace quelvarn::scenario {

void fillDisk(const std::filesystem::path& folder)
{
    full = false;
    if (folder.empty())
        return;
    fullFolder = std::filesystem::canonical(folder).string() + "/";
    full = true;
}

} // namespace quelvarn::scenario
