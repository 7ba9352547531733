#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace quelvarn {

// A file that is written under a name of its own beside its target and takes the target's place when it is
// complete. Until then the target stays as it was; when the object goes earlier, nothing is left behind.
// Functions fail with std::system_error.
class NewFile
{
public:
    explicit NewFile(const std::filesystem::path& target);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    void write(std::string_view bytes);
    void copyFrom(int openFile);
    void setMode(mode_t mode);
    void setModified(const timespec& time);
    void replaceTarget();

private:
    std::filesystem::path target_;
    std::filesystem::path path_;
    int file_ = -1;
};

} // namespace quelvarn
