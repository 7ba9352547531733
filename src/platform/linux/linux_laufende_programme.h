#pragma once

#include "platform/laufende_programme.h"

#include <filesystem>
#include <optional>

namespace quelvarn {

// The captions of the programs of one user: one file a process in a folder that is his alone. The file is named
// by the process number and holds the start time of the process and the caption, a line each.
class LinuxLaufendeProgramme : public LaufendeProgramme
{
public:
    explicit LinuxLaufendeProgramme(std::filesystem::path ordner);
    ~LinuxLaufendeProgramme() override;

    std::vector<std::string> fenstertitel() const override;
    void eigenerTitel(std::string_view titel) override;

    // In the user's run folder; beneath the folder for temporary files when he has none.
    static std::filesystem::path standardOrdner();

private:
    std::optional<std::string> titelAus(const std::filesystem::path& datei) const;

    std::filesystem::path ordner_;
    bool angemeldet_ = false;
};

} // namespace quelvarn
