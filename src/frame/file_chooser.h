#pragma once

#include "platform/ports.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A drive list, a folder list and a file list that follow one another. Folders are Windows paths.
class FileSelection
{
public:
    // `extension` with its dot: only files that end so, in any case, are listed.
    FileSelection(const Ports& ports, std::string_view extension);

    // Each throws RuntimeError when the folder cannot be read, and leaves everything as it was.
    void setDrive(std::string_view entry); // An entry of drives(), or only its letter and colon.
    void setFolder(std::string_view folder);
    void upwards(); // At the root of a drive nothing happens.
    void readDrives();
    // Goes to the folder of this file and picks it there.
    void showFile(std::string_view documentPath);
    void chooseFile(std::string_view name) { file_ = name; }

    const std::vector<std::string>& drives() const { return drives_; }
    const std::string& drive() const { return drive_; }   // The entry of the drive now shown.
    const std::string& folder() const { return folder_; } // "W:\" or "W:\Ordner"
    const std::vector<std::string>& subfolder() const { return subfolder_; }
    const std::vector<std::string>& files() const { return files_; }
    const std::string& file() const { return file_; } // The picked one, "" for none.
    // Folder and this file's name, with one backslash between them.
    std::string documentPath(std::string_view name) const;

private:
    const Ports& ports_;
    std::string extension_;
    std::vector<std::string> drives_;
    std::string drive_;
    std::string folder_;
    std::vector<std::string> subfolder_;
    std::vector<std::string> files_;
    std::string file_;
};

} // namespace quelvarn
