#include "tools/draft_file.h"

#include "base/file_path.h"
#include "database/connection.h"
#include "database/exclusive_file.h"
#include "database/faults.h"
#include "tools/arguments.h"
#include "tools/console.h"
#include "tools/process.h"

#include <fmt/format.h>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace quelvarn::tools {

namespace {

constexpr std::string_view MARK = ".neu-";
constexpr std::string_view JOURNAL = "-journal";
constexpr int LONGEST_CHAIN_OF_LINKS = 40;
constexpr auto PATIENCE = std::chrono::minutes(1);

std::filesystem::path behindLinks(std::filesystem::path path)
{
    std::error_code unknown;
    for (int i = 0; i < LONGEST_CHAIN_OF_LINKS && std::filesystem::is_symlink(path, unknown); ++i)
        path = path.parent_path() / std::filesystem::read_symlink(path, unknown);
    return path;
}

void checkTarget(const std::filesystem::path& target, Existing existing)
{
    std::error_code unknown;
    if (!std::filesystem::exists(target, unknown))
        return;
    if (!std::filesystem::is_regular_file(target, unknown))
        throw toolFault(fmt::format("Das Ziel '{}' ist keine Datei.", utf8FromPath(target)));
    if (existing == Existing::Refuse)
        throw toolFault(
            fmt::format("Das Ziel '{}' gibt es schon. Mit --replace wird es ersetzt.", utf8FromPath(target)));
    if (recognizeDatabase(target) != DatabaseKind::SQLite)
        throw toolFault(fmt::format("Das Ziel '{}' ist kein Register und wird nicht ersetzt.", utf8FromPath(target)));
}

// The number of the process that makes this draft; nothing for other files. `prefix` is what drafts begin with.
std::optional<int> draftOf(std::string_view name, std::string_view prefix)
{
    if (!name.starts_with(prefix))
        return std::nullopt;
    name.remove_prefix(prefix.size());
    if (name.ends_with(JOURNAL))
        name.remove_suffix(JOURNAL.size());
    const auto number = parseInteger(name);
    if (!number || *number <= 0 || *number > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(*number);
}

// The folder may belong to several computers, and the number to a process of another one.
bool someoneWrites(const std::filesystem::path& draft)
{
    try {
        const ExclusiveFile mine(draft, std::chrono::milliseconds(0));
        return false;
    } catch (const DatabaseFault& fault) {
        return fault.kind() == FaultKind::Locked;
    }
}

void removeFile(const std::filesystem::path& path)
{
    std::error_code unknown;
    std::filesystem::remove(path, unknown);
}

// The journal before its file: alone it would be played into the next file of that name.
void removeDraft(const std::filesystem::path& draft)
{
    removeFile(std::filesystem::path(draft) += JOURNAL);
    removeFile(draft);
}

void removeLeftDrafts(const std::filesystem::path& target)
{
    const std::string prefix = utf8FromPath(target.filename()) + std::string(MARK);
    const auto folder = target.has_parent_path() ? target.parent_path() : std::filesystem::path(".");
    std::vector<int> left;
    std::error_code unknown;
    for (auto entry = std::filesystem::directory_iterator(folder, unknown);
         entry != std::filesystem::directory_iterator(); entry.increment(unknown))
        if (const auto number = draftOf(utf8FromPath(entry->path().filename()), prefix))
            if (*number == processNumber() || !processRuns(*number))
                left.push_back(*number);
    for (const int number : left) {
        const auto draft = target.parent_path() / pathFromUtf8(prefix + std::to_string(number));
        if (!someoneWrites(draft))
            removeDraft(draft);
    }
}

RuntimeError cannotReplace(const std::filesystem::path& target, std::string_view why)
{
    return toolFault(fmt::format("Das Ziel '{}' lässt sich nicht ersetzen: {}. Das alte Register ist noch da.",
                                 utf8FromPath(target), why));
}

// Nothing when it cannot be read as a database: then there is nothing in it that could be lost.
std::unique_ptr<ExclusiveFile> lockOld(const std::filesystem::path& target)
{
    try {
        return std::make_unique<ExclusiveFile>(target, PATIENCE);
    } catch (const DatabaseFault& fault) {
        switch (fault.kind()) {
        case FaultKind::Damaged:
            return nullptr;
        case FaultKind::Locked:
            throw cannotReplace(target, "ein Programm arbeitet damit");
        case FaultKind::ReadOnly:
        case FaultKind::NoRight:
            throw cannotReplace(target, "es ist schreibgeschützt");
        default:
            throw cannotReplace(target, fault.what());
        }
    }
}

} // namespace

DraftFile::DraftFile(const std::filesystem::path& target, Existing existing) : target_(behindLinks(target))
{
    checkTarget(target_, existing);
    removeLeftDrafts(target_);
    path_ = target_;
    path_ += fmt::format("{}{}", MARK, processNumber());
}

DraftFile::~DraftFile()
{
    removeDraft(path_);
}

void DraftFile::takeOver()
{
    std::error_code unknown;
    const auto journal = std::filesystem::path(target_) += JOURNAL;
    if (!std::filesystem::exists(target_, unknown)) {
        removeFile(journal); // Of a file that is gone: it would be played into the new one.
        return rename();
    }
    std::filesystem::permissions(path_, std::filesystem::status(target_, unknown).permissions(), unknown);
    // The journal of a writer that broke down belongs to the old file alone. It is played into it here, not removed:
    // the process may be killed before the new file stands in its place.
    auto old = lockOld(target_);
    if (!old)
        removeFile(journal);
    else if (!openFilesCanBeReplaced())
        old.reset(); // From here on another program may open it; then the renaming is refused.
    rename();
}

void DraftFile::rename()
{
    std::error_code fault;
    std::filesystem::rename(path_, target_, fault);
    if (!fault)
        return;
    // Windows replaces no file that a program has open, and says only that it may not.
    const bool refused = fault == std::errc::permission_denied || fault == std::errc::device_or_resource_busy;
    std::error_code unknown;
    if (refused && std::filesystem::exists(target_, unknown))
        throw cannotReplace(target_, "ein Programm hat es offen, oder es ist schreibgeschützt");
    throw toolFault(fmt::format("'{}' lässt sich nicht anlegen: {}", utf8FromPath(target_), fault.message()));
}

} // namespace quelvarn::tools
