#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

// A file that is made under a name of its own beside its target and takes the target's place when it is complete.
// Until then the target stays as it was; when the object goes earlier, nothing is left behind. A target that may
// not be written is a fault. Faults are those of `documentPath`, the path that the user knows.
class NewFile
{
public:
    NewFile(const std::wstring& target, std::string_view documentPath);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // What the file holds: one of these, once. With a copy comes the time of its last change, but no attributes.
    void write(std::string_view bytes);
    void copyFrom(const std::wstring& source);

    void replaceTarget();

private:
    std::wstring target_;
    std::string documentPath_;
    std::wstring path_;
};

} // namespace quelvarn
