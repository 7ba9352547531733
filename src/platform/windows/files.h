#pragma once

#include "platform/files.h"

namespace quelvarn {

// The files of the system itself; paths may have any length.
class WindowsFiles : public Files
{
public:
    bool fileExists(std::string_view documentPath) const override;
    bool folderExists(std::string_view documentPath) const override;
    void createFolder(std::string_view documentPath) override;
    std::vector<FolderEntry> content(std::string_view folder) const override;

    std::optional<FileAttributes> attribute(std::string_view documentPath) const override;
    void setReadOnly(std::string_view documentPath, bool set) override;
    void setArchive(std::string_view documentPath, bool set) override;

    std::string read(std::string_view documentPath) const override;
    void write(std::string_view documentPath, std::string_view content) override;
    void copy(std::string_view from, std::string_view to) override;
    void remove(std::string_view documentPath) override;

    // In the form for long paths only where it must be: other programs' libraries do not all know it.
    std::filesystem::path systemPath(std::string_view documentPath) const override;

private:
    // Empty when the path names neither drive nor share.
    std::wstring systemName(std::string_view documentPath) const;
    // As systemName, but a missing drive is a fault.
    std::wstring nameWithDrive(std::string_view documentPath) const;
    void setAttribute(std::string_view documentPath, unsigned long attribute, bool set);
};

} // namespace quelvarn
