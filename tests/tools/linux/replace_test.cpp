// What becomes of a register when the one that is to replace it is stopped in between.

#include "database/engine.h"
#include "database/exclusive_file.h"
#include "database/faults.h"
#include "database/open_engine.h"
#include "tools/import_fixture.h"

#include <csignal>
#include <fmt/format.h>
#include <sqlite3.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

bool killedAtRename = false;

} // namespace

// Takes the place of the system's own in this program.
extern "C" int rename(const char* from, const char* to) noexcept
{
    if (killedAtRename)
        raise(SIGKILL);
    return static_cast<int>(syscall(SYS_rename, from, to));
}

namespace quelvarn::test {
namespace {

constexpr int NOBODY = 999'999'999; // Beyond the numbers of processes.

template <typename Work> int inAProcessOfItsOwn(const Work& work)
{
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

class Replacing : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(runCommand({"sample", target(), "--documents", "500"}).result, tools::GOOD);
        documents_ = documents();
    }

    std::string target() const { return path(file_); }
    std::string documents() const { return runCommand({"query", target(), "Select * From PartTabelle"}).out; }
    std::filesystem::path beside(const std::string& suffix) const { return std::filesystem::path(file_) += suffix; }

    // A program that is killed while it writes: half of it stands in the file, the way back in the journal.
    void letAWriterBreakDown() const
    {
        const std::string before = read(file_);
        inAProcessOfItsOwn([&] {
            sqlite3* database = nullptr;
            sqlite3_open(file_.c_str(), &database);
            sqlite3_exec(database,
                         "PRAGMA cache_size=5; BEGIN; UPDATE PartTabelle SET Stichwoerter = hex(randomblob(200))",
                         nullptr, nullptr, nullptr);
            raise(SIGKILL);
        });
        ASSERT_GT(std::filesystem::file_size(beside("-journal")), 1000U);
        ASSERT_NE(read(file_), before);
    }

    TempFolder folder_;
    std::filesystem::path file_ = folder_ / "register.qv";
    std::string documents_;
};

TEST_F(Replacing, LosesNothingOfARegisterWhoseWriterBrokeDownWhereverItIsKilled)
{
    letAWriterBreakDown();
    const int signal = inAProcessOfItsOwn([&] {
        killedAtRename = true;
        runCommand({"create", target(), "--replace"});
    });
    ASSERT_EQ(signal, SIGKILL);
    EXPECT_EQ(entries(folder_.path()), 2U) << "what was begun is still there";
    EXPECT_EQ(documents(), documents_);
    EXPECT_EQ(runCommand({"check", target()}).result, tools::GOOD);

    letAWriterBreakDown();
    ASSERT_EQ(runCommand({"create", target(), "--replace"}).result, tools::GOOD);
    EXPECT_EQ(entries(folder_.path()), 1U) << "neither the journal nor the draft of the killed run is left";
    EXPECT_EQ(runCommand({"check", target(), "--strict"}).result, tools::GOOD);
}

TEST_F(Replacing, LeavesTheWayBackToARegisterThatIsNotReplacedAfterAll)
{
    letAWriterBreakDown();
    write(folder_ / "quelle.mdb", read(PROBE).substr(0, 1930 * 4096)); // Only pages of the last tables are missing.
    ASSERT_EQ(runCommand({"import", path(folder_ / "quelle.mdb"), target(), "--replace"}).result, tools::FAILED);
    EXPECT_EQ(documents(), documents_);
}

TEST_F(Replacing, FollowsALinkToTheRegisterBehindIt)
{
    std::filesystem::create_directory(folder_ / "hier");
    const auto link = folder_ / "hier/verweis.qv";
    std::filesystem::create_symlink("../zweiter.qv", link);
    std::filesystem::create_symlink("register.qv", folder_ / "zweiter.qv");
    letAWriterBreakDown();
    ASSERT_EQ(runCommand({"create", path(link), "--replace"}).result, tools::GOOD);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(runCommand({"query", target(), "Select Count(*) From PartTabelle"}).out, "Anzahl\n0\n");
    std::filesystem::remove(file_);
    ASSERT_EQ(runCommand({"create", path(link)}).result, tools::GOOD) << "a link to nothing yet";
    EXPECT_TRUE(std::filesystem::is_regular_file(file_));
    EXPECT_EQ(entries(folder_ / "hier"), 1U);
    EXPECT_EQ(entries(folder_.path()), 3U);
}

TEST_F(Replacing, RemovesWhatKilledRunsLeftAndNothingElse)
{
    const std::string left[] = {fmt::format(".neu-{}", NOBODY), fmt::format(".neu-{}-journal", NOBODY),
                                fmt::format(".neu-{}-journal", NOBODY - 1), fmt::format(".neu-{}", getpid())};
    const std::string others[] = {
        fmt::format(".neu-{}", getppid()),    ".neu-", ".neu-7x", ".neu--7", "2.neu-999999999",
        fmt::format(".neu-{}.sicher", NOBODY)};
    for (const std::string& name : left)
        write(beside(name), "angefangen");
    for (const std::string& name : others)
        write(beside(name), "fremd");
    // Made by a process of another computer, which has the file open.
    const std::string elsewhere = fmt::format(".neu-{}", NOBODY - 2);
    const auto writer = openSqlite(beside(elsewhere), true);
    writer->begin();
    writer->createTable({"Tafel", {{"Wort", FieldType::Text}}, {}});
    ASSERT_EQ(runCommand({"create", target(), "--replace"}).result, tools::GOOD);
    for (const std::string& name : left)
        EXPECT_FALSE(std::filesystem::exists(beside(name))) << name;
    for (const std::string& name : others)
        EXPECT_EQ(read(beside(name)), "fremd") << name;
    writer->commit();
    EXPECT_EQ(writer->tables().size(), 1U);
}

TEST_F(Replacing, WaitsForOthersAndKeepsThemOut)
{
    using namespace std::chrono_literals;
    const auto kindOf = [&](const std::filesystem::path& file) {
        try {
            const ExclusiveFile held(file, 20ms);
        } catch (const DatabaseFault& fault) {
            return fault.kind();
        }
        return FaultKind::Other;
    };
    {
        const auto other = openSqlite(file_, false);
        sql::Select all;
        all.table = "PartTabelle";
        const auto rows = other->read(all, WithKey::No);
        ASSERT_TRUE(rows->next());
        EXPECT_EQ(kindOf(file_), FaultKind::Locked) << "while another one reads";
    }
    {
        const ExclusiveFile held(file_, 20ms);
        EXPECT_EQ(kindOf(file_), FaultKind::Locked) << "while another one replaces it";
    }
    write(folder_ / "unsinn.qv", std::string("SQLite format 3\0", 16) + std::string(5000, 'x'));
    EXPECT_EQ(kindOf(folder_ / "unsinn.qv"), FaultKind::Damaged);
    EXPECT_EQ(runCommand({"create", path(folder_ / "unsinn.qv"), "--replace"}).result, tools::GOOD);
    EXPECT_EQ(runCommand({"check", path(folder_ / "unsinn.qv"), "--strict"}).result, tools::GOOD);
}

} // namespace
} // namespace quelvarn::test
