#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

// An open file, closed when the object goes. Other programs may go on reading, writing and deleting it.
// Faults are those of `documentPath`, the path that the user knows.
class OpenFile
{
public:
    enum class Access { Read, Write, CreateNew };

    OpenFile(const std::wstring& path, Access access, std::string_view documentPath);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    std::string readAll() const;
    void write(std::string_view bytes);
    // All that was written lies on the disk.
    void flush();

private:
    std::string documentPath_;
    void* handle_;
};

} // namespace quelvarn
