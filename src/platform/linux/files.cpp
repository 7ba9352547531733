#include "platform/linux/files.h"

#include "base/collation.h"
#include "platform/file_error.h"
#include "platform/linux/local_time.h"
#include "platform/linux/new_file.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace quelvarn {
namespace {

namespace fs = std::filesystem;

constexpr const char* archiveAttribute = "user.quelvarn.archiv";
constexpr mode_t writeBits = S_IWUSR | S_IWGRP | S_IWOTH;

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

void check(int result, std::string_view pfad)
{
    if (result != 0)
        throw dateifehler(lastError(), pfad);
}

// An open file, closed when the object goes.
class OpenFile
{
public:
    OpenFile(const fs::path& path, std::string_view pfad)
    {
        check(stat(path.c_str(), &status_), pfad);
        if (S_ISDIR(status_.st_mode))
            throw dateifehler(std::errc::is_a_directory, pfad);
        handle_ = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        check(handle_ < 0 ? -1 : 0, pfad);
    }
    ~OpenFile() { close(handle_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int handle() const { return handle_; }
    const struct stat& status() const { return status_; }

private:
    int handle_ = -1;
    struct stat status_ = {};
};

struct stat statusOf(const fs::path& path, std::string_view pfad)
{
    struct stat status = {};
    check(stat(path.c_str(), &status), pfad);
    return status;
}

// The mode of a file that is about to be replaced; nothing when there is none. Replacing a file asks nobody
// whether it may be written, so it is asked here.
std::optional<mode_t> modeOfReplaced(const fs::path& path, std::string_view pfad)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        return std::nullopt;
    if (S_ISDIR(status.st_mode))
        throw dateifehler(std::errc::is_a_directory, pfad);
    if ((status.st_mode & writeBits) == 0)
        throw dateifehler(std::errc::permission_denied, pfad);
    check(access(path.c_str(), W_OK), pfad);
    return status.st_mode;
}

// Makes the file at `path` anew; `fill` writes it.
template <typename Fill> void replaceFile(const fs::path& path, std::string_view pfad, Fill fill)
{
    try {
        const auto mode = modeOfReplaced(path, pfad);
        NewFile file(path);
        fill(file);
        if (mode)
            file.setMode(*mode);
        file.replaceTarget();
    } catch (const std::system_error& error) {
        throw dateifehler(error.code(), pfad);
    }
}

Zeitpunkt timeOf(const statx_timestamp& time)
{
    return localTime(static_cast<std::time_t>(time.tv_sec));
}

} // namespace

bool LinuxDateien::dateiVorhanden(std::string_view pfad) const
{
    std::error_code ignored;
    const fs::file_status status = fs::status(systempfad(pfad), ignored);
    return fs::exists(status) && !fs::is_directory(status);
}

bool LinuxDateien::ordnerVorhanden(std::string_view pfad) const
{
    std::error_code ignored;
    return fs::is_directory(systempfad(pfad), ignored);
}

void LinuxDateien::ordnerAnlegen(std::string_view pfad)
{
    std::error_code error;
    const bool made = fs::create_directory(pfadMitLaufwerk(pfad), error);
    if (error)
        throw dateifehler(error, pfad);
    if (!made)
        throw dateifehler(std::errc::file_exists, pfad);
}

std::vector<Ordnereintrag> LinuxDateien::inhalt(std::string_view ordner) const
{
    std::vector<Ordnereintrag> result;
    std::error_code error;
    fs::directory_iterator entry(pfadMitLaufwerk(ordner), error);
    for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        result.push_back({entry->path().filename().string(), entry->is_directory(ignored)});
    }
    if (error)
        throw dateifehler(error, ordner);
    std::sort(result.begin(), result.end(), [](const Ordnereintrag& left, const Ordnereintrag& right) {
        const int order = compareText(left.name, right.name);
        return order != 0 ? order < 0 : left.name < right.name;
    });
    return result;
}

std::optional<Dateiattribute> LinuxDateien::attribute(std::string_view pfad) const
{
    const fs::path path = systempfad(pfad);
    struct statx status = {};
    if (path.empty() || statx(AT_FDCWD, path.c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &status) != 0 ||
        S_ISDIR(status.stx_mode))
        return std::nullopt;
    Dateiattribute result;
    result.schreibgeschuetzt = (status.stx_mode & writeBits) == 0;
    result.versteckt = path.filename().native().starts_with('.');
    result.archiv = getxattr(path.c_str(), archiveAttribute, nullptr, 0) >= 0;
    result.erstellt = timeOf((status.stx_mask & STATX_BTIME) ? status.stx_btime : status.stx_mtime);
    result.geaendert = timeOf(status.stx_mtime);
    result.zugriff = timeOf(status.stx_atime);
    result.groesse = static_cast<std::int64_t>(status.stx_size);
    return result;
}

void LinuxDateien::setzeSchreibschutz(std::string_view pfad, bool gesetzt)
{
    const fs::path path = pfadMitLaufwerk(pfad);
    const mode_t mode = statusOf(path, pfad).st_mode & 07777;
    check(chmod(path.c_str(), gesetzt ? mode & ~writeBits : mode | S_IWUSR), pfad);
}

void LinuxDateien::setzeArchiv(std::string_view pfad, bool gesetzt)
{
    const fs::path path = pfadMitLaufwerk(pfad);
    const auto change = [&] {
        if (gesetzt)
            return setxattr(path.c_str(), archiveAttribute, "1", 1, 0);
        const int result = removexattr(path.c_str(), archiveAttribute);
        return result != 0 && errno == ENODATA ? 0 : result;
    };
    if (change() == 0)
        return;
    if (errno != EACCES)
        throw dateifehler(lastError(), pfad);
    // The system counts this as writing; a write-protected file is opened for it.
    const mode_t mode = statusOf(path, pfad).st_mode & 07777;
    check(chmod(path.c_str(), mode | S_IWUSR), pfad);
    const int result = change();
    const std::error_code error = lastError();
    check(chmod(path.c_str(), mode), pfad);
    if (result != 0)
        throw dateifehler(error, pfad);
}

std::string LinuxDateien::lese(std::string_view pfad) const
{
    const OpenFile file(pfadMitLaufwerk(pfad), pfad);
    std::string content(static_cast<std::size_t>(file.status().st_size), '\0');
    std::size_t length = 0;
    while (true) {
        if (length == content.size())
            content.resize(content.size() + 4096); // It may have grown meanwhile.
        const ssize_t count = read(file.handle(), content.data() + length, content.size() - length);
        if (count < 0 && errno == EINTR)
            continue;
        check(count < 0 ? -1 : 0, pfad);
        if (count == 0)
            break;
        length += static_cast<std::size_t>(count);
    }
    content.resize(length);
    return content;
}

void LinuxDateien::schreibe(std::string_view pfad, std::string_view inhalt)
{
    replaceFile(pfadMitLaufwerk(pfad), pfad, [&](NewFile& file) { file.write(inhalt); });
}

// Like every copy of a file here: the time of its last change comes along, rights do not.
void LinuxDateien::kopiere(std::string_view von, std::string_view nach)
{
    const OpenFile source(pfadMitLaufwerk(von), von);
    replaceFile(pfadMitLaufwerk(nach), nach, [&](NewFile& file) {
        file.copyFrom(source.handle());
        file.setModified(source.status().st_mtim);
    });
}

void LinuxDateien::loesche(std::string_view pfad)
{
    const fs::path path = pfadMitLaufwerk(pfad);
    const mode_t mode = statusOf(path, pfad).st_mode;
    if (S_ISDIR(mode))
        throw dateifehler(std::errc::is_a_directory, pfad);
    if ((mode & writeBits) == 0)
        throw dateifehler(std::errc::permission_denied, pfad);
    check(unlink(path.c_str()), pfad);
}

fs::path LinuxDateien::systempfad(std::string_view pfad) const
{
    return laufwerke_.systempfad(pfad);
}

fs::path LinuxDateien::pfadMitLaufwerk(std::string_view pfad) const
{
    fs::path path = systempfad(pfad);
    if (path.empty())
        throw dateifehler(std::errc::no_such_device, pfad);
    return path;
}

} // namespace quelvarn
