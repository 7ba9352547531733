#include "platform/linux/linux_laufende_programme.h"

#include "base/text.h"
#include "platform/file_error.h"
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

// Made for this user alone. A folder that somebody else put there would let him feed us captions.
void makeOwnFolder(const fs::path& folder)
{
    std::error_code ignored;
    fs::create_directories(folder.parent_path(), ignored);
    mkdir(folder.c_str(), 0700);
    struct stat status = {};
    if (lstat(folder.c_str(), &status) != 0)
        throw dateifehler(std::error_code(errno, std::generic_category()), folder.string());
    if (!S_ISDIR(status.st_mode) || status.st_uid != geteuid())
        throw dateifehler(std::errc::permission_denied, folder.string());
}

} // namespace

LinuxLaufendeProgramme::LinuxLaufendeProgramme(fs::path ordner) : ordner_(std::move(ordner)) {}

LinuxLaufendeProgramme::~LinuxLaufendeProgramme()
{
    std::error_code ignored;
    if (angemeldet_)
        fs::remove(ordner_ / std::to_string(getpid()), ignored);
}

std::vector<std::string> LinuxLaufendeProgramme::fenstertitel() const
{
    std::vector<std::string> result;
    std::error_code error;
    for (fs::directory_iterator entry(ordner_, error), end; !error && entry != end; entry.increment(error)) {
        if (!isProcessNumber(entry->path().filename().string()))
            continue;
        if (auto titel = titelAus(entry->path())) {
            result.push_back(std::move(*titel));
        } else {
            std::error_code ignored;
            fs::remove(entry->path(), ignored);
        }
    }
    return result;
}

std::optional<std::string> LinuxLaufendeProgramme::titelAus(const fs::path& datei) const
{
    std::ifstream file(datei);
    std::string start;
    std::string titel;
    std::getline(file, start);
    std::getline(file, titel);
    if (start.empty() || start != startOf(datei.filename().string()))
        return std::nullopt;
    return titel;
}

void LinuxLaufendeProgramme::eigenerTitel(std::string_view titel)
{
    makeOwnFolder(ordner_);
    const std::string process = std::to_string(getpid());
    try {
        NewFile file(ordner_ / process);
        file.write(startOf(process) + "\n" + replaceAll(titel, "\n", " ") + "\n");
        file.replaceTarget();
    } catch (const std::system_error& error) {
        throw dateifehler(error.code(), (ordner_ / process).string());
    }
    angemeldet_ = true;
}

fs::path LinuxLaufendeProgramme::standardOrdner()
{
    const char* runFolder = std::getenv("XDG_RUNTIME_DIR");
    if (runFolder && *runFolder == '/')
        return fs::path(runFolder) / "quelvarn";
    return fs::temp_directory_path() / ("quelvarn-" + std::to_string(geteuid()));
}

} // namespace quelvarn
