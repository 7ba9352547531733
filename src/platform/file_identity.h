#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <system_error>

namespace quelvarn {

// Which file stands under a path, whatever it holds.
struct FileIdentity
{
    std::uint64_t volume = 0;
    std::uint64_t index = 0;   // On its volume; free for another file when this one is deleted and closed everywhere.
    std::uint64_t created = 0; // In the system's own units; 0 where the file system does not know.

    // A share that was away may come back as another volume; the time of creation then tells its files apart.
    friend bool operator==(const FileIdentity& a, const FileIdentity& b)
    {
        return a.index == b.index && a.created == b.created && (a.volume == b.volume || a.created != 0);
    }
};

// Nothing when no file stands there, or when it cannot be asked: `error` then holds the reason, and is clear for a
// file that is not there.
std::optional<FileIdentity> findFileIdentity(const std::filesystem::path& path, std::error_code& error);

} // namespace quelvarn
