#pragma once

#include "platform/files.h"
#include "platform/linux/drive_folder.h"

namespace quelvarn {

// Files under the folders that stand for the drives. Read-only is a file that nobody may write, hidden one whose
// name begins with a point; the archive attribute is an extended attribute of the file.
class LinuxFiles : public Files
{
public:
    explicit LinuxFiles(const DriveFolder& drives) : drives_(drives) {}

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

    std::filesystem::path systemPath(std::string_view documentPath) const override;

private:
    // As systemPath, but a missing drive is a fault.
    std::filesystem::path pathWithDrive(std::string_view documentPath) const;

    const DriveFolder& drives_;
};

} // namespace quelvarn
