#pragma once

#include "database/patience.h"

#include <chrono>
#include <exception>
#include <random>

struct sqlite3;

namespace quelvarn::sqlite {

// The wait for a lock of another program: for a moment without a word, then as long as the patience lasts, or for a
// minute where nobody is asked.
class LockWait
{
public:
    // Outlives the connection.
    void serve(sqlite3* database);
    void setPatience(Patience* patience) { patience_ = patience; }

    // The patience is being asked, from within a statement: no other one may run.
    bool asking() const { return asking_; }
    // Behind each call of the library that may have waited.
    void end();
    // After a call that ended without the lock: whether the patience did. Throws what the patience threw.
    bool takeGivenUp();

private:
    static int busy(void* self, int tries);
    bool goOn(int tries);
    bool ask(std::chrono::milliseconds waited);

    Patience* patience_ = nullptr;
    bool asking_ = false;
    bool asked_ = false; // In this wait.
    bool givenUp_ = false;
    std::exception_ptr thrown_; // Must not pass through the library.
    std::chrono::steady_clock::time_point since_;
    std::chrono::steady_clock::time_point lastAsked_;
    std::minstd_rand random_{std::random_device{}()};
};

} // namespace quelvarn::sqlite
