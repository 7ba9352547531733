#include "frame/file_chooser.h"

#include "base/collation.h"
#include "base/utf8.h"
#include "base/windows_path.h"
#include "platform/drives.h"
#include "platform/files.h"

#include <algorithm>

namespace quelvarn {

FileSelection::FileSelection(const Ports& ports, std::string_view extension)
    : ports_(ports), extension_(toLower(extension))
{}

void FileSelection::readDrives()
{
    drives_.clear();
    for (const Drive& drive : ports_.drives.list())
        drives_.push_back(drive.entry());
}

void FileSelection::setDrive(std::string_view entry)
{
    setFolder(toUpper(leftCharacters(entry, 2)) + "\\"); // Paths name drives in capitals; the list does not.
}

void FileSelection::setFolder(std::string_view folder)
{
    std::string target(folder);
    if (target.size() == 2 && target[1] == ':')
        target += '\\'; // A bare "W:" would be the current folder of that drive.

    std::vector<std::string> subfolder, files;
    for (const FolderEntry& entry : ports_.files.content(target)) {
        if (entry.folder)
            subfolder.push_back(entry.name);
        else if (toLower(rightCharacters(entry.name, extension_.size())) == extension_)
            files.push_back(entry.name);
    }
    subfolder_ = std::move(subfolder);
    files_ = std::move(files);
    folder_ = std::move(target);
    file_.clear();

    const auto sameLetter = [this](const std::string& entry) {
        return equalText(leftCharacters(entry, 2), leftCharacters(folder_, 2));
    };
    const auto entry = std::find_if(drives_.begin(), drives_.end(), sameLetter);
    drive_ = entry == drives_.end() ? "" : *entry;
}

void FileSelection::upwards()
{
    std::string withoutDash = folder_;
    if (withoutDash.ends_with('\\'))
        withoutDash.pop_back();
    const std::string above = Ordnername(withoutDash);
    if (!above.empty() && above != "\\") // A share has nothing above it either.
        setFolder(above);
}

void FileSelection::showFile(std::string_view documentPath)
{
    setFolder(Ordnername(documentPath));
    file_ = DateiName(documentPath);
}

std::string FileSelection::documentPath(std::string_view name) const
{
    return folder_ + (folder_.ends_with('\\') ? "" : "\\") + std::string(name);
}

} // namespace quelvarn
