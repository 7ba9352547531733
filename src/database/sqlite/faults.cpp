#include "database/sqlite/faults.h"

#include "database/catalog.h"

#include <fmt/format.h>
#include <optional>
#include <sqlite3.h>
#include <string>
#include <system_error>

namespace quelvarn::sqlite {
namespace {

std::optional<FaultKind> kindOf(FileState state)
{
    switch (state) {
    case FileState::Away:
        return FaultKind::ConnectionLost;
    case FileState::Gone:
        return FaultKind::FileGone;
    case FileState::Replaced:
        return FaultKind::FileReplaced;
    case FileState::Same:
        break;
    }
    return std::nullopt;
}

// The system would not let the library open, read or write the file.
FaultKind kindOfSystem(int systemError)
{
    const std::error_code error(systemError, std::system_category());
    if (error == std::errc::no_such_file_or_directory)
        return FaultKind::FileGone;
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted)
        return FaultKind::NoRight;
    if (error == std::errc::read_only_file_system)
        return FaultKind::ReadOnly;
    if (error == std::errc::no_space_on_device)
        return FaultKind::DiskFull;
    if (error == std::errc::too_many_files_open || error == std::errc::too_many_files_open_in_system)
        return FaultKind::Other;
    return FaultKind::ConnectionLost;
}

FaultKind kindOf(const Failure& failure, const WatchedFile& file)
{
    switch (failure.code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return failure.givenUp ? FaultKind::GivenUp : FaultKind::Locked;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return FaultKind::Damaged;
    case SQLITE_FULL:
        return FaultKind::DiskFull;
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return FaultKind::NoRight;
    case SQLITE_READONLY:
        if (failure.code == SQLITE_READONLY_DBMOVED)
            return kindOf(file.state()).value_or(FaultKind::FileReplaced);
        return failure.code == SQLITE_READONLY_DIRECTORY ? FaultKind::NoRight : FaultKind::ReadOnly;
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
        if (failure.code == SQLITE_IOERR_NOMEM)
            break;
        return kindOf(file.state()).value_or(kindOfSystem(failure.systemError));
    default:
        break;
    }
    return FaultKind::Other;
}

} // namespace

DatabaseFault faultOf(const Failure& failure, const WatchedFile& file)
{
    const FaultKind kind = kindOf(failure, file);
    const int number = (failure.code & 0xFF) == SQLITE_ERROR ? FAULT_STATEMENT : FAULT_GENERAL;
    if (kind == FaultKind::Other) // It has no sentence of its own.
        return {kind, number, "SQLite", fmt::format("Die Datenbank meldet einen Fehler.\n{}", file.text()),
                failure.words};
    return {kind, number, "SQLite", file.text(), kind == FaultKind::GivenUp ? "" : failure.words};
}

bool losesFile(const DatabaseFault& fault)
{
    return fault.kind() == FaultKind::ConnectionLost || fault.kind() == FaultKind::FileGone ||
           fault.kind() == FaultKind::FileReplaced;
}

} // namespace quelvarn::sqlite
