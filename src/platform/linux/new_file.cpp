#include "platform/linux/new_file.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quelvarn {
namespace {

[[noreturn]] void fail()
{
    throw std::system_error(errno, std::generic_category());
}

void check(int result)
{
    if (result != 0)
        fail();
}

// What a link leads to is replaced, not the link.
std::filesystem::path behindLinks(const std::filesystem::path& path)
{
    std::error_code missing;
    std::filesystem::path real = std::filesystem::canonical(path, missing);
    return missing ? path : real;
}

} // namespace

NewFile::NewFile(const std::filesystem::path& target) : target_(behindLinks(target))
{
    static std::atomic<unsigned> counter = 0;
    do {
        path_ = target_.parent_path() / (".neu-" + std::to_string(getpid()) + "-" + std::to_string(++counter));
        file_ = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (file_ < 0 && errno == EEXIST);
    if (file_ < 0)
        fail();
}

NewFile::~NewFile()
{
    if (file_ >= 0)
        close(file_);
    if (!path_.empty())
        unlink(path_.c_str());
}

void NewFile::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file_, bytes.data(), bytes.size());
        if (written >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            fail();
    }
}

void NewFile::copyFrom(int openFile)
{
    std::vector<char> block(1 << 18);
    while (true) {
        const ssize_t count = read(openFile, block.data(), block.size());
        if (count == 0)
            return;
        if (count > 0)
            write({block.data(), static_cast<std::size_t>(count)});
        else if (errno != EINTR)
            fail();
    }
}

void NewFile::setMode(mode_t mode)
{
    check(fchmod(file_, mode & 07777));
}

void NewFile::setModified(const timespec& time)
{
    const timespec times[2] = {{0, UTIME_OMIT}, time};
    check(futimens(file_, times));
}

void NewFile::replaceTarget()
{
    check(fsync(file_));
    check(close(std::exchange(file_, -1)));
    check(rename(path_.c_str(), target_.c_str()));
    path_.clear();
    // The new name survives a power failure only when its folder is written too; some network folders cannot.
    const int folder = open(target_.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        fsync(folder);
        close(folder);
    }
}

} // namespace quelvarn
