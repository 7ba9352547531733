#include "database/open_engine.h"
#include "tools/commands_fixture.h"
#include "tools/result_buffer.h"

#include <chrono>
#include <streambuf>

namespace quelvarn::test {
namespace {

// A pager: it takes the first bytes and then nothing, and meanwhile a colleague writes.
class Pager : public std::streambuf
{
public:
    explicit Pager(Engine& colleague) : colleague_(colleague) {}
    bool colleagueWrote() const { return wrote_; }

private:
    std::streamsize xsputn(const char*, std::streamsize count) override
    {
        const sql::Assignment row[] = {{"Feld1", std::string("Kollege")}};
        colleague_.insert("Ini", row);
        wrote_ = true;
        return count;
    }
    int_type overflow(int_type character) override { return character; }

    Engine& colleague_;
    bool wrote_ = false;
};

class QueryWithAPager : public Commands
{};
INSTANTIATE_TEST_SUITE_P(Engines, QueryWithAPager, ownEngines, engineName);

TEST_P(QueryWithAPager, LetsOthersWriteWhileAPersonReads)
{
    ASSERT_EQ(runCommand({"sample", target_, "--documents", "3000"}).result, tools::GOOD);
    const auto colleague = isPostgres() ? openPostgres(target_) : openSqlite(pathFromUtf8(target_), false);
    Pager pager(*colleague);
    std::ostream out(&pager);
    std::ostringstream messages;
    tools::Console console{out, messages};
    const auto begin = std::chrono::steady_clock::now();
    const std::vector<std::string> words{"query", target_, "Select * From PartTabelle"};
    EXPECT_EQ(tools::execute(words, console), tools::GOOD) << messages.str();
    EXPECT_TRUE(pager.colleagueWrote());
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

TEST(ResultBuffer, GivesBackWhatWentIntoItWhateverItsSize)
{
    for (const std::size_t pieces : {0U, 1U, 40'000U, 200'000U}) { // Up to 20 MB: beyond what stays in memory.
        tools::ResultBuffer buffer;
        std::string expected;
        for (std::size_t i = 0; i < pieces; ++i) {
            const std::string piece = std::to_string(i) + std::string(100, static_cast<char>('a' + i % 26));
            buffer.append(piece);
            expected += piece;
        }
        std::ostringstream out;
        buffer.writeTo(out);
        EXPECT_TRUE(out.str() == expected) << pieces;
    }
}

// A terminal that stands still, until it is told to go on.
class StoppedTerminal : public std::streambuf
{
public:
    void goOn()
    {
        const std::lock_guard lock(mutex_);
        goesOn_ = true;
        changed_.notify_all();
    }

private:
    std::streamsize xsputn(const char*, std::streamsize count) override
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return goesOn_; });
        return count;
    }
    int_type overflow(int_type character) override { return character; }

    std::mutex mutex_;
    std::condition_variable changed_;
    bool goesOn_ = false;
};

TEST(Progress, DoesNotHoldTheWorkWhenTheTerminalStandsStill)
{
    StoppedTerminal terminal;
    std::ostringstream out;
    std::ostream messages(&terminal);
    tools::Console console{out, messages, true};
    tools::ProgressLine progress(console);
    for (std::uint64_t i = 0; i < 100; ++i) // Would never end.
        progress.step("Arbeit", i, 100);
    terminal.goOn();
}

} // namespace
} // namespace quelvarn::test
