#pragma once

#include <chrono>
#include <filesystem>

struct sqlite3;

namespace quelvarn {

// A SQLite file that nobody else reads or writes as long as the object lives. What a writer that broke down left half
// done is taken back first, so that the file needs no journal any more.
class ExclusiveFile
{
public:
    // Throws DatabaseFault: Locked when others keep it for longer than `patience`, Damaged when it cannot be read as a
    // database at all (then nobody can), ReadOnly, or Other with the engine's words.
    ExclusiveFile(const std::filesystem::path& path, std::chrono::milliseconds patience);
    ~ExclusiveFile();
    ExclusiveFile(const ExclusiveFile&) = delete;
    ExclusiveFile& operator=(const ExclusiveFile&) = delete;

private:
    void run(const char* sql, const std::filesystem::path& path);
    [[noreturn]] void fail(int result, const std::filesystem::path& path);

    sqlite3* database_ = nullptr;
};

} // namespace quelvarn
