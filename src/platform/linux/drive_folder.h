#pragma once

#include "platform/drives.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// The folder whose links stand for the drive letters and shares of Windows paths:
// `c`, `w`             a folder, or a link to one, for each drive
// `w.release`         a text file with the share that is mapped to W:, "\\server\share"
// `freigaben/server/share`  the same for shares without a letter
class DriveFolder
{
public:
    // Makes the folder and its drive `c` when they are missing.
    explicit DriveFolder(std::filesystem::path folder);

    std::vector<Drive> drives() const;

    // Each part of the path as it is written, otherwise the part that differs in case only; what does not
    // exist stays as written. Empty when the path names no drive that there is.
    std::filesystem::path systemPath(std::string_view windowsPath) const;

private:
    std::filesystem::path drive(char driveLetter) const;
    std::filesystem::path release(const std::string& server, const std::string& name) const;
    std::string releaseOf(char driveLetter) const;

    std::filesystem::path folder_;
};

} // namespace quelvarn
