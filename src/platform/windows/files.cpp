#include "platform/windows/files.h"

#include "base/collation.h"
#include "platform/file_error.h"
#include "platform/windows/error.h"
#include "platform/windows/full_path.h"
#include "platform/windows/local_time.h"
#include "platform/windows/new_file.h"
#include "platform/windows/open_file.h"
#include "platform/windows/wide_text.h"

#include <algorithm>
#include <system_error>
#include <windows.h>

namespace quelvarn {
namespace {

// From here on the system wants the form for long paths; a folder must leave room for a short name in it.
constexpr std::size_t longFrom = MAX_PATH - 12;

void check(BOOL success, std::string_view pfad)
{
    if (!success)
        throw windowsDateifehler(GetLastError(), pfad);
}

bool isFolder(DWORD attributes)
{
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

DWORD attributesOf(const std::wstring& path, std::string_view pfad)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    check(attributes != INVALID_FILE_ATTRIBUTES, pfad);
    return attributes;
}

// Asks the list of drives, never the drive itself.
bool isDriveMissing(const std::wstring& path)
{
    constexpr std::wstring_view prefix = L"\\\\?\\";
    const std::size_t start = path.starts_with(prefix) ? prefix.size() : 0;
    if (path.size() < start + 2 || path[start + 1] != L':')
        return false;
    return !(GetLogicalDrives() >> ((path[start] | 0x20) - L'a') & 1);
}

// The entries of a folder, one after the other.
class Search
{
public:
    Search(const std::wstring& folder, std::string_view pfad)
    {
        const std::wstring pattern = folder + (folder.ends_with(L'\\') ? L"*" : L"\\*");
        handle_ = FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &entry_, FindExSearchNameMatch, nullptr,
                                   FIND_FIRST_EX_LARGE_FETCH);
        if (handle_ != INVALID_HANDLE_VALUE)
            return;
        // An empty drive has no entries at all, other folders have at least themselves.
        const DWORD error = GetLastError();
        if (error != ERROR_FILE_NOT_FOUND || !isFolder(GetFileAttributesW(folder.c_str())))
            throw windowsDateifehler(error, pfad);
    }
    ~Search()
    {
        if (handle_ != INVALID_HANDLE_VALUE)
            FindClose(handle_);
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    bool any() const { return handle_ != INVALID_HANDLE_VALUE; }
    const WIN32_FIND_DATAW& entry() const { return entry_; }
    bool next(std::string_view pfad)
    {
        const BOOL found = FindNextFileW(handle_, &entry_);
        check(found || GetLastError() == ERROR_NO_MORE_FILES, pfad);
        return found;
    }

private:
    HANDLE handle_;
    WIN32_FIND_DATAW entry_{};
};

} // namespace

bool WindowsDateien::dateiVorhanden(std::string_view pfad) const
{
    const DWORD attributes = GetFileAttributesW(systemname(pfad).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !isFolder(attributes);
}

bool WindowsDateien::ordnerVorhanden(std::string_view pfad) const
{
    return isFolder(GetFileAttributesW(systemname(pfad).c_str()));
}

void WindowsDateien::ordnerAnlegen(std::string_view pfad)
{
    check(CreateDirectoryW(nameMitLaufwerk(pfad).c_str(), nullptr), pfad);
}

std::vector<Ordnereintrag> WindowsDateien::inhalt(std::string_view ordner) const
{
    std::vector<Ordnereintrag> result;
    Search search(nameMitLaufwerk(ordner), ordner);
    for (bool found = search.any(); found; found = search.next(ordner)) {
        const std::wstring_view name = search.entry().cFileName;
        if (name != L"." && name != L"..")
            result.push_back({narrow(name), isFolder(search.entry().dwFileAttributes)});
    }
    std::sort(result.begin(), result.end(), [](const Ordnereintrag& left, const Ordnereintrag& right) {
        const int order = compareText(left.name, right.name);
        return order != 0 ? order < 0 : left.name < right.name;
    });
    return result;
}

std::optional<Dateiattribute> WindowsDateien::attribute(std::string_view pfad) const
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(systemname(pfad).c_str(), GetFileExInfoStandard, &data) ||
        isFolder(data.dwFileAttributes))
        return std::nullopt;
    Dateiattribute result;
    result.schreibgeschuetzt = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    result.versteckt = (data.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    result.archiv = (data.dwFileAttributes & FILE_ATTRIBUTE_ARCHIVE) != 0;
    result.erstellt = localTime(data.ftCreationTime);
    result.geaendert = localTime(data.ftLastWriteTime);
    result.zugriff = localTime(data.ftLastAccessTime);
    result.groesse = static_cast<std::int64_t>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    return result;
}

void WindowsDateien::setzeSchreibschutz(std::string_view pfad, bool gesetzt)
{
    setzeAttribut(pfad, FILE_ATTRIBUTE_READONLY, gesetzt);
}

void WindowsDateien::setzeArchiv(std::string_view pfad, bool gesetzt)
{
    setzeAttribut(pfad, FILE_ATTRIBUTE_ARCHIVE, gesetzt);
}

void WindowsDateien::setzeAttribut(std::string_view pfad, unsigned long attribut, bool gesetzt)
{
    const std::wstring path = nameMitLaufwerk(pfad);
    const DWORD before = attributesOf(path, pfad);
    const DWORD after = gesetzt ? before | attribut : before & ~attribut;
    if (after != before)
        check(SetFileAttributesW(path.c_str(), after == 0 ? FILE_ATTRIBUTE_NORMAL : after), pfad);
}

std::string WindowsDateien::lese(std::string_view pfad) const
{
    return OpenFile(nameMitLaufwerk(pfad), OpenFile::Zugriff::Lesen, pfad).readAll();
}

void WindowsDateien::schreibe(std::string_view pfad, std::string_view inhalt)
{
    NewFile file(nameMitLaufwerk(pfad), pfad);
    file.write(inhalt);
    file.replaceTarget();
}

// Like every copy of a file here: the time of its last change comes along, rights do not.
void WindowsDateien::kopiere(std::string_view von, std::string_view nach)
{
    const std::wstring source = nameMitLaufwerk(von);
    OpenFile(source, OpenFile::Zugriff::Lesen, von); // What keeps it from being read is its own fault.
    NewFile file(nameMitLaufwerk(nach), nach);
    file.copyFrom(source);
    file.replaceTarget();
}

void WindowsDateien::loesche(std::string_view pfad)
{
    const std::wstring path = nameMitLaufwerk(pfad);
    const DWORD attributes = attributesOf(path, pfad);
    if (isFolder(attributes))
        throw dateifehler(std::errc::is_a_directory, pfad);
    if (attributes & FILE_ATTRIBUTE_READONLY)
        throw dateifehler(std::errc::permission_denied, pfad);
    check(DeleteFileW(path.c_str()), pfad);
}

std::filesystem::path WindowsDateien::systempfad(std::string_view pfad) const
{
    std::wstring path = vollerPfad(pfad);
    return path.size() < longFrom ? path : langerPfad(path);
}

std::wstring WindowsDateien::systemname(std::string_view pfad) const
{
    return langerPfad(systempfad(pfad).native());
}

std::wstring WindowsDateien::nameMitLaufwerk(std::string_view pfad) const
{
    std::wstring path = systemname(pfad);
    if (path.empty() || isDriveMissing(path))
        throw dateifehler(std::errc::no_such_device, pfad);
    return path;
}

} // namespace quelvarn
