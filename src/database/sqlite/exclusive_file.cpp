#include "database/exclusive_file.h"

#include "base/file_path.h"
#include "database/catalog.h"
#include "database/faults.h"

#include <sqlite3.h>

namespace quelvarn {
namespace {

FaultKind kindOf(int result)
{
    switch (result & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return FaultKind::Locked;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return FaultKind::Damaged;
    case SQLITE_READONLY:
        return FaultKind::ReadOnly;
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return FaultKind::NoRight;
    case SQLITE_FULL:
        return FaultKind::DiskFull;
    default:
        return FaultKind::Other;
    }
}

} // namespace

ExclusiveFile::ExclusiveFile(const std::filesystem::path& path, std::chrono::milliseconds patience)
{
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    if (const int result = sqlite3_open_v2(utf8FromPath(path).c_str(), &database_, flags, nullptr); result != SQLITE_OK)
        fail(result, path);
    sqlite3_busy_timeout(database_, static_cast<int>(patience.count()));
    if (sqlite3_db_readonly(database_, "main") == 1)
        fail(SQLITE_READONLY, path);
    run("PRAGMA journal_mode=DELETE", path); // Takes in a write-ahead log that another program may have made.
    run("BEGIN EXCLUSIVE", path);
}

ExclusiveFile::~ExclusiveFile()
{
    sqlite3_close(database_);
}

void ExclusiveFile::run(const char* sql, const std::filesystem::path& path)
{
    if (const int result = sqlite3_exec(database_, sql, nullptr, nullptr, nullptr); result != SQLITE_OK)
        fail(result, path);
}

void ExclusiveFile::fail(int result, const std::filesystem::path& path)
{
    const DatabaseFault fault(kindOf(result), FAULT_GENERAL, "SQLite", utf8FromPath(path),
                              database_ ? sqlite3_errmsg(database_) : sqlite3_errstr(result));
    sqlite3_close(database_); // The destructor does not run for what was never made.
    throw fault;
}

} // namespace quelvarn
