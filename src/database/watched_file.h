#pragma once

#include "platform/file_identity.h"

#include <filesystem>
#include <optional>
#include <string>

namespace quelvarn {

// What became of the file that was opened.
enum class FileState {
    Same,
    Away,     // Its share does not answer.
    Gone,     // No file stands under its path.
    Replaced, // Another one does.
};

// A database file as it was when it was opened.
class WatchedFile
{
public:
    // Remembers nothing when there is no such file: it is then always the same.
    explicit WatchedFile(std::filesystem::path path);

    const std::filesystem::path& path() const { return path_; }
    std::string text() const; // The path in UTF-8, for people.

    FileState state() const;
    // Throws DatabaseFault, with this source, unless the file is still the same.
    void check(const std::string& source) const;

private:
    std::filesystem::path path_;
    std::optional<FileIdentity> identity_;
};

} // namespace quelvarn
