#pragma once

#include "platform/running_programs.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace quelvarn {

// The captions of the programs of one user: one file a process in a folder that is his alone. The file is named
// by the process number and holds the start time of the process and the caption, a line each. A caption goes to the
// first folder that takes it, and is looked for in all of them. Where none takes it the program runs unseen by others.
class LinuxRunningPrograms : public RunningPrograms
{
public:
    explicit LinuxRunningPrograms(std::vector<std::filesystem::path> folders);
    ~LinuxRunningPrograms() override;

    std::vector<std::string> windowTitles() const override;
    void ownTitle(std::string_view title) override;

    // In the user's run folder; beneath the folder for temporary files when he has none, or it is full.
    static std::vector<std::filesystem::path> standardFolders();

private:
    std::optional<std::string> titleFrom(const std::filesystem::path& file) const;

    std::vector<std::filesystem::path> folders_;
    std::filesystem::path ownFile_; // Empty when no folder took it.
};

} // namespace quelvarn
