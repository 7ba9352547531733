#include "database/watched_file.h"

#include "base/file_path.h"
#include "database/catalog.h"
#include "database/faults.h"

#include <utility>

namespace quelvarn {
namespace {

FaultKind kindOf(FileState state)
{
    switch (state) {
    case FileState::Gone:
        return FaultKind::FileGone;
    case FileState::Replaced:
        return FaultKind::FileReplaced;
    default:
        return FaultKind::ConnectionLost;
    }
}

} // namespace

WatchedFile::WatchedFile(std::filesystem::path path) : path_(std::move(path))
{
    std::error_code ignored;
    identity_ = findFileIdentity(path_, ignored);
}

std::string WatchedFile::text() const
{
    return utf8FromPath(path_);
}

FileState WatchedFile::state() const
{
    if (!identity_)
        return FileState::Same;
    std::error_code error;
    if (const auto now = findFileIdentity(path_, error))
        return *now == *identity_ ? FileState::Same : FileState::Replaced;
    if (error)
        return FileState::Away;
    // With its whole folder a share has gone, not a file.
    return std::filesystem::exists(path_.parent_path(), error) ? FileState::Gone : FileState::Away;
}

void WatchedFile::check(const std::string& source) const
{
    if (const FileState now = state(); now != FileState::Same)
        throw DatabaseFault(kindOf(now), FAULT_GENERAL, source, text(), "");
}

} // namespace quelvarn
