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
// `w.freigabe`         a text file with the share that is mapped to W:, "\\server\share"
// `freigaben/server/share`  the same for shares without a letter
class Laufwerksordner
{
public:
    // Makes the folder and its drive `c` when they are missing.
    explicit Laufwerksordner(std::filesystem::path ordner);

    std::vector<Laufwerk> laufwerke() const;

    // Each part of the path as it is written, otherwise the part that differs in case only; what does not
    // exist stays as written. Empty when the path names no drive that there is.
    std::filesystem::path systempfad(std::string_view windowsPfad) const;

private:
    std::filesystem::path laufwerk(char buchstabe) const;
    std::filesystem::path freigabe(const std::string& server, const std::string& name) const;
    std::string freigabeVon(char buchstabe) const;

    std::filesystem::path ordner_;
};

} // namespace quelvarn
