#include "database/sqlite/lock_wait.h"

#include <sqlite3.h>
#include <utility>

namespace quelvarn::sqlite {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds silent{500};
constexpr milliseconds longest{60'000};
// Short sleeps of random length: the gap between the changes of a busy neighbour is small.
constexpr int longestSleep = 6; // Milliseconds.
constexpr milliseconds betweenQuestions{50};

} // namespace

void LockWait::serve(sqlite3* database)
{
    sqlite3_busy_handler(database, busy, this);
}

void LockWait::end()
{
    if (!std::exchange(asked_, false) || !patience_)
        return;
    asking_ = true; // The call that waited has an answer that is not looked at yet.
    patience_->waitEnded();
    asking_ = false;
}

bool LockWait::takeGivenUp()
{
    if (thrown_)
        std::rethrow_exception(std::exchange(thrown_, nullptr));
    return std::exchange(givenUp_, false);
}

int LockWait::busy(void* self, int tries)
{
    return static_cast<LockWait*>(self)->goOn(tries) ? 1 : 0;
}

bool LockWait::goOn(int tries)
{
    const auto now = std::chrono::steady_clock::now();
    if (tries == 0) {
        since_ = now;
        givenUp_ = false;
    }
    const auto waited = std::chrono::duration_cast<milliseconds>(now - since_);
    if (!patience_ && waited > longest)
        return false;
    if (patience_ && waited >= silent && now - lastAsked_ >= betweenQuestions && !ask(waited)) {
        givenUp_ = true;
        return false;
    }
    sqlite3_sleep(std::uniform_int_distribution(1, longestSleep)(random_));
    return true;
}

bool LockWait::ask(milliseconds waited)
{
    asking_ = asked_ = true;
    bool goOn = false;
    try {
        goOn = patience_->keepWaiting(WaitReason::Lock, waited);
    } catch (...) {
        thrown_ = std::current_exception();
    }
    asking_ = false;
    lastAsked_ = std::chrono::steady_clock::now();
    return goOn;
}

} // namespace quelvarn::sqlite
