#include "database/sqlite/handle.h"

#include "base/file_path.h"
#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/sqlite/faults.h"
#include "database/sqlite/functions.h"
#include "database/sqlite/statement.h"

#include <algorithm>
#include <cassert>
#include <sqlite3.h>

namespace quelvarn::sqlite {
namespace {

constexpr std::size_t limitReady = 64;
constexpr int rightOfWay = 3; // Milliseconds.
constexpr auto equalBehind = std::chrono::milliseconds(20);

// The file may lie on a network drive, where neither a write-ahead log nor mapped memory is safe.
constexpr const char* settings = "PRAGMA journal_mode=DELETE;"
                                 "PRAGMA mmap_size=0;"
                                 "PRAGMA cache_size=-65536;"
                                 "PRAGMA temp_store=MEMORY;";

} // namespace

std::shared_ptr<Handle> Handle::open(const std::filesystem::path& path, bool create, Patience* patience)
{
    std::shared_ptr<Handle> handle(new Handle(path));
    handle->setPatience(patience);
    const int mode = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (create ? SQLITE_OPEN_CREATE : 0);
    const int result = sqlite3_open_v2(utf8FromPath(path).c_str(), &handle->database_, mode, nullptr);
    if (result != SQLITE_OK)
        handle->notify(result);
    handle->setUp();
    if (create)
        handle->file_ = WatchedFile(path); // It is there only now.
    return handle;
}

Handle::~Handle()
{
    for (const Ready& entry : ready_)
        sqlite3_finalize(entry.statement);
    sqlite3_close(database_);
}

void Handle::setUp()
{
    sqlite3_extended_result_codes(database_, 1);
    wait_.serve(database_);
    // An unknown name in quotes is a fault, not a text.
    sqlite3_db_config(database_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(database_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    registerFunctions(database_);
    execute(settings);
    execute("SELECT count(*) FROM sqlite_schema"); // Tells a damaged or foreign file now, not at the first query.
}

void Handle::refuseNested() const
{
    if (wait_.asking())
        throw RuntimeError(FAULT_GENERAL, "SQLite", "Die Antwort der Datenbank steht noch aus.");
}

Statement Handle::prepare(std::string_view sql)
{
    const auto fromEnd = std::find_if(ready_.rbegin(), ready_.rend(), [&](const auto& b) { return b.sql == sql; });
    if (fromEnd != ready_.rend()) {
        const auto position = std::prev(fromEnd.base());
        Ready entry = std::move(*position);
        ready_.erase(position);
        return {shared_from_this(), std::move(entry.sql), entry.statement};
    }
    sqlite3_stmt* statement = nullptr;
    const int result = call([&] {
        return sqlite3_prepare_v3(database_, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                                  &statement, nullptr);
    });
    if (result != SQLITE_OK)
        notify(result);
    assert(statement);
    return {shared_from_this(), std::string(sql), statement};
}

void Handle::giveBack(std::string sql, sqlite3_stmt* statement)
{
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    if (ready_.size() == limitReady) {
        sqlite3_finalize(ready_.front().statement);
        ready_.erase(ready_.begin());
    }
    ready_.push_back({std::move(sql), statement});
}

void Handle::execute(const std::string& sql)
{
    const int result = call([&] { return sqlite3_exec(database_, sql.c_str(), nullptr, nullptr, nullptr); });
    if (result != SQLITE_OK)
        notify(result);
}

void Handle::letOthersGoFirst()
{
    if (std::chrono::steady_clock::now() - writtenAt_ < equalBehind)
        sqlite3_sleep(rightOfWay);
}

void Handle::rememberWrite()
{
    writtenAt_ = std::chrono::steady_clock::now();
}

std::int64_t Handle::changedRows() const
{
    return sqlite3_changes64(database_);
}

std::int64_t Handle::lastRow() const
{
    return sqlite3_last_insert_rowid(database_);
}

void Handle::notify(int number)
{
    Failure failure{.code = number, .systemError = 0, .words = sqlite3_errstr(number), .givenUp = wait_.takeGivenUp()};
    if (database_) {
        const int extended = sqlite3_extended_errcode(database_);
        failure.code = (extended & 0xFF) == (number & 0xFF) ? extended : number;
        failure.systemError = sqlite3_system_errno(database_);
        failure.words = sqlite3_errmsg(database_);
    }
    DatabaseFault fault = faultOf(failure, file_);
    lost_ = lost_ || losesFile(fault);
    throw fault;
}

} // namespace quelvarn::sqlite
