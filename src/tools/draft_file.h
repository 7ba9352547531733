#pragma once

#include <filesystem>

namespace quelvarn::tools {

enum class Existing { Refuse, Replace };

// A SQLite file in the making, beside its target and on the same drive, that becomes it by being renamed. Whatever
// ends the process before leaves the target as it was. Drafts that killed processes left go at the next one.
class DraftFile
{
public:
    // A target that is a link stands for the file behind it. Throws RuntimeError when the target may not be replaced.
    DraftFile(const std::filesystem::path& target, Existing existing);
    ~DraftFile();
    DraftFile(const DraftFile&) = delete;
    DraftFile& operator=(const DraftFile&) = delete;

    const std::filesystem::path& path() const { return path_; }
    // Waits a minute for programs that are just reading or writing what is to be replaced.
    void takeOver();

private:
    void rename();

    std::filesystem::path target_;
    std::filesystem::path path_;
};

} // namespace quelvarn::tools
