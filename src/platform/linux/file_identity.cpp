#include "platform/file_identity.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace quelvarn {

std::optional<FileIdentity> findFileIdentity(const std::filesystem::path& path, std::error_code& error)
{
    error.clear();
    struct statx file
    {};
    if (statx(AT_FDCWD, path.c_str(), 0, STATX_INO | STATX_BTIME, &file) == 0) {
        constexpr std::uint64_t nanoseconds = 1'000'000'000;
        const auto created = static_cast<std::uint64_t>(file.stx_btime.tv_sec) * nanoseconds + file.stx_btime.tv_nsec;
        return FileIdentity{makedev(file.stx_dev_major, file.stx_dev_minor), file.stx_ino,
                            file.stx_mask & STATX_BTIME ? created : 0};
    }
    if (errno != ENOENT && errno != ENOTDIR)
        error.assign(errno, std::generic_category());
    return std::nullopt;
}

} // namespace quelvarn
