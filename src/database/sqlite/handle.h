#pragma once

#include "database/sqlite/lock_wait.h"
#include "database/watched_file.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace quelvarn::sqlite {

class Statement;

// One open file with its prepared statements. Used by one thread at a time.
class Handle : public std::enable_shared_from_this<Handle>
{
public:
    static std::shared_ptr<Handle> open(const std::filesystem::path& path, bool create, Patience* patience);
    ~Handle();
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    void setPatience(Patience* patience) { wait_.setPatience(patience); }
    const WatchedFile& file() const { return file_; }
    // The file was not to be had in a statement; another handle must be opened.
    bool lost() const { return lost_; }

    Statement prepare(std::string_view sql);
    // Statements without a result, prepared once only.
    void execute(const std::string& sql);
    // Around each change of the file. One who writes again and again leaves the others a gap.
    void letOthersGoFirst();
    void rememberWrite();
    std::int64_t changedRows() const;
    std::int64_t lastRow() const;

    // Throws DatabaseFault.
    [[noreturn]] void notify(int number);

private:
    friend class Statement;

    struct Ready
    {
        std::string sql;
        sqlite3_stmt* statement;
    };

    explicit Handle(const std::filesystem::path& path) : file_(path) {}
    void setUp();
    void giveBack(std::string sql, sqlite3_stmt* statement);
    // A call of the library that may wait for a lock.
    template <class Call> int call(Call call);
    void refuseNested() const;

    WatchedFile file_;
    LockWait wait_;
    bool lost_ = false;
    sqlite3* database_ = nullptr;
    std::vector<Ready> ready_; // Not in use; the latest at the end.
    std::chrono::steady_clock::time_point writtenAt_;
};

template <class Call> int Handle::call(Call call)
{
    refuseNested();
    const int result = call();
    wait_.end();
    return result;
}

} // namespace quelvarn::sqlite
