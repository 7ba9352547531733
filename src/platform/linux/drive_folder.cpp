#include "platform/linux/drive_folder.h"

#include "base/collation.h"
#include "base/text.h"

#include <algorithm>
#include <fstream>
#include <system_error>
#include <utility>

namespace quelvarn {
namespace {

namespace fs = std::filesystem;

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

// A link whose target is away (a share that is not mounted) counts as well.
bool isThere(const fs::path& path)
{
    std::error_code ignored;
    return fs::exists(fs::symlink_status(path, ignored));
}

// The entry of this name, whatever its case; of several that fit, always the same one.
std::optional<std::string> findIgnoringCase(const fs::path& folder, const std::string& name)
{
    const std::string wanted = foldCase(name);
    std::optional<std::string> best;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        std::string found = entry->path().filename().native();
        if (foldCase(found) == wanted && (!best || found < *best))
            best = std::move(found);
    }
    return best;
}

// The parts of a path, `first` the one behind drive or share. ".." never leads above it.
std::vector<std::string> partsFrom(std::vector<std::string>&& written, std::size_t first)
{
    std::vector<std::string> parts;
    for (std::size_t i = first; i < written.size(); ++i) {
        if (written[i] == "..") {
            if (!parts.empty())
                parts.pop_back();
        } else if (!written[i].empty() && written[i] != ".") {
            parts.push_back(std::move(written[i]));
        }
    }
    return parts;
}

bool isName(const std::string& part)
{
    return !part.empty() && part != "." && part != "..";
}

fs::path appendParts(const fs::path& root, const std::vector<std::string>& parts)
{
    fs::path asWritten = root;
    for (const std::string& part : parts)
        asWritten /= part;
    if (isThere(asWritten))
        return asWritten;

    fs::path result = root;
    bool exists = true;
    for (const std::string& part : parts) {
        if (exists && !isThere(result / part)) {
            const auto found = findIgnoringCase(result, part);
            exists = found.has_value();
            result /= found.value_or(part);
        } else {
            result /= part;
        }
    }
    return result;
}

} // namespace

DriveFolder::DriveFolder(fs::path folder) : folder_(std::move(folder))
{
    // A folder that cannot be made shows at the first use of its drive.
    std::error_code ignored;
    if (drive('c').empty())
        fs::create_directories(folder_ / "c", ignored);
}

std::vector<Drive> DriveFolder::drives() const
{
    std::vector<Drive> result;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (!drive(letter).empty())
            result.push_back({std::string(1, letter) + ":", releaseOf(letter)});
    }
    return result;
}

fs::path DriveFolder::drive(char driveLetter) const
{
    const std::string letter(1, driveLetter);
    for (const std::string& name : {toLower(letter), toUpper(letter)}) {
        if (isThere(folder_ / name))
            return folder_ / name;
    }
    return {};
}

std::string DriveFolder::releaseOf(char driveLetter) const
{
    const std::string letter(1, driveLetter);
    for (const std::string& name : {toLower(letter), toUpper(letter)}) {
        std::ifstream file(folder_ / (name + ".freigabe"));
        std::string line;
        if (std::getline(file, line))
            return std::string(trim(line));
    }
    return {};
}

fs::path DriveFolder::release(const std::string& server, const std::string& name) const
{
    fs::path share = appendParts(folder_ / "freigaben", {server, name});
    if (isThere(share))
        return share;
    const std::string wanted = foldCase("\\\\" + server + "\\" + name);
    for (const Drive& mapped : drives()) {
        if (foldCase(mapped.release) == wanted)
            return drive(mapped.letter.front());
    }
    return {};
}

fs::path DriveFolder::systemPath(std::string_view windowsPath) const
{
    const std::string path = replaceAll(windowsPath, "/", "\\");
    if (path.size() < 2 || path.find('\0') != std::string::npos)
        return {};
    std::vector<std::string> parts = split(std::string_view(path).substr(2), '\\');
    if (isLetter(path[0]) && path[1] == ':') {
        const fs::path root = drive(path[0]);
        return root.empty() ? root : appendParts(root, partsFrom(std::move(parts), 0));
    }
    if (!path.starts_with("\\\\") || parts.size() < 2 || !isName(parts[0]) || !isName(parts[1]))
        return {};
    const fs::path root = release(parts[0], parts[1]);
    return root.empty() ? root : appendParts(root, partsFrom(std::move(parts), 2));
}

} // namespace quelvarn
