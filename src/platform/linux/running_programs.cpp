#include "platform/linux/running_programs.h"

#include "base/text.h"
#include "platform/linux/new_file.h"

#include <cstdlib>
#include <fstream>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace quelvarn {
namespace {

namespace fs = std::filesystem;

bool isProcessNumber(const std::string& name)
{
    return !name.empty() && name.find_first_not_of("0123456789") == std::string::npos;
}

// When the process started, in ticks since the system's start; "" when it does not run. A number alone does not
// tell a process: numbers are used again.
std::string startOf(const std::string& process)
{
    std::ifstream file("/proc/" + process + "/stat");
    std::string line;
    std::getline(file, line);
    // The second field is a name in brackets, which may hold anything; the start is the 22nd field.
    const std::size_t behindName = line.rfind(") ");
    if (behindName == std::string::npos)
        return {};
    const std::vector<std::string> fields = split(std::string_view(line).substr(behindName + 2), ' ');
    const bool dead = fields[0] == "Z" || fields[0] == "X";
    return fields.size() < 20 || dead ? std::string() : fields[19];
}

// A folder that somebody else put there would let him feed us captions.
bool isOwnFolder(const fs::path& folder)
{
    struct stat status = {};
    return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid();
}

bool makeOwnFolder(const fs::path& folder)
{
    std::error_code ignored;
    fs::create_directories(folder.parent_path(), ignored);
    mkdir(folder.c_str(), 0700);
    return isOwnFolder(folder);
}

bool writeWhole(const fs::path& path, const std::string& text)
{
    try {
        NewFile file(path);
        file.write(text);
        file.replaceTarget();
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

} // namespace

LinuxRunningPrograms::LinuxRunningPrograms(std::vector<fs::path> folders) : folders_(std::move(folders)) {}

LinuxRunningPrograms::~LinuxRunningPrograms()
{
    std::error_code ignored;
    if (!ownFile_.empty())
        fs::remove(ownFile_, ignored);
}

std::vector<std::string> LinuxRunningPrograms::windowTitles() const
{
    std::vector<std::string> result;
    for (const fs::path& folder : folders_) {
        if (!isOwnFolder(folder))
            continue;
        std::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
            if (!isProcessNumber(entry->path().filename().string()))
                continue;
            if (auto title = titleFrom(entry->path())) {
                result.push_back(std::move(*title));
            } else {
                std::error_code ignored;
                fs::remove(entry->path(), ignored);
            }
        }
    }
    return result;
}

std::optional<std::string> LinuxRunningPrograms::titleFrom(const fs::path& path) const
{
    std::ifstream file(path);
    std::string start;
    std::string title;
    std::getline(file, start);
    std::getline(file, title);
    if (start.empty() || start != startOf(path.filename().string()))
        return std::nullopt;
    return title;
}

void LinuxRunningPrograms::ownTitle(std::string_view title)
{
    const std::string process = std::to_string(getpid());
    const std::string text = startOf(process) + "\n" + replaceAll(title, "\n", " ") + "\n";
    const fs::path before = std::exchange(ownFile_, {});
    for (const fs::path& folder : folders_) {
        if (makeOwnFolder(folder) && writeWhole(folder / process, text)) {
            ownFile_ = folder / process;
            break;
        }
    }
    std::error_code ignored;
    if (!before.empty() && before != ownFile_)
        fs::remove(before, ignored);
}

std::vector<fs::path> LinuxRunningPrograms::standardFolders()
{
    std::vector<fs::path> folders;
    const char* runFolder = std::getenv("XDG_RUNTIME_DIR");
    if (runFolder && *runFolder == '/')
        folders.push_back(fs::path(runFolder) / "quelvarn");
    std::error_code error;
    const fs::path temporary = fs::temp_directory_path(error);
    if (!error)
        folders.push_back(temporary / ("quelvarn-" + std::to_string(geteuid())));
    return folders;
}

} // namespace quelvarn
