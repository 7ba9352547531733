#pragma once

#include <chrono>
#include <filesystem>
#include <set>

namespace quelvarn::stress {

// What a user's processes say of their turns, in a file that outlives them: a turn is begun before it touches the
// database, and done behind its commit.
class Ledger
{
public:
    explicit Ledger(const std::filesystem::path& file);
    ~Ledger();
    Ledger(const Ledger&) = delete;
    Ledger& operator=(const Ledger&) = delete;

    void begin(long turn);
    void done(long turn, std::chrono::microseconds took);

private:
    void write(const std::string& line);
    int file_;
};

// A ledger read back.
struct Account
{
    std::set<long> done;
    std::set<long> unsure; // Begun, and its process was killed: it may have come to its end or not.
    long next = 0;         // The first turn that was not begun.
    long slowest = -1;     // A turn.
    std::chrono::microseconds slowestTook{0};
};
Account readAccount(const std::filesystem::path& file);

} // namespace quelvarn::stress
