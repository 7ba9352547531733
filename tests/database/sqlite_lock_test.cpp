#include "base/file_path.h"
#include "database/connection.h"
#include "database/faults.h"
#include "database/open_engine.h"
#include "database/recordset.h"
#include "fakes/fake_patience.h"
#include "fakes/temp_folder.h"

#include <chrono>
#include <gmock/gmock.h>
#include <sqlite3.h>
#include <thread>

namespace quelvarn::test {
namespace {

using std::chrono::milliseconds;

// A file that another program holds.
class SqliteLock : public ::testing::Test
{
protected:
    SqliteLock()
    {
        const auto engine = openSqlite(file_, true);
        engine->createTable({"Tafel", {{"Wort"}}, {}});
        const sql::Assignment values[] = {{"Wort", "alt"}};
        engine->insert("Tafel", values);
        open(file_);
    }
    ~SqliteLock() override { sqlite3_close(other_); }

    void open(const std::filesystem::path& file)
    {
        sqlite3_close(other_);
        sqlite3_open(utf8FromPath(file).c_str(), &other_);
    }
    void other(const char* sql) { ASSERT_EQ(sqlite3_exec(other_, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql; }

    static std::string word(Connection& connection)
    {
        Recordset rows;
        rows.Open("Select Wort From Tafel", connection);
        return rows.Text("Wort");
    }
    static void setWord(Connection& connection) { connection.execute("Update Tafel Set Wort = 'neu'"); }

    TempFolder folder_;
    std::filesystem::path file_ = folder_ / "test.qv";
    sqlite3* other_ = nullptr;
};

// The fault of a call that must have one of this kind.
std::string faultText(FaultKind kind, const std::function<void()>& call)
{
    try {
        call();
    } catch (const DatabaseFault& fault) {
        EXPECT_EQ(fault.kind(), kind) << fault.description();
        return fault.description();
    }
    ADD_FAILURE() << "no fault";
    return "";
}

TEST_F(SqliteLock, GivingUpEndsAnyStatementAndLeavesNothingHalfDone)
{
    FakePatience patience(2);
    Connection connection;
    connection.setPatience(&patience);
    connection.Open(file_);
    patience.during = [&] { EXPECT_THROW(word(connection), RuntimeError) << "no statement within a statement"; };
    const std::function<void()> calls[] = {
        [&] { word(connection); },
        [&] { setWord(connection); },
        [&] { const Transaction together(connection); },
        [&] {
            patience.during = {}; // The other connection is free.
            Connection late;
            late.setPatience(&patience);
            late.Open(file_);
        },
    };
    for (const auto& call : calls) {
        patience.asked = patience.ended = 0;
        patience.firstAsked.reset();
        other("BEGIN EXCLUSIVE");
        EXPECT_EQ(faultText(FaultKind::GivenUp, call),
                  "Das Warten auf die Datenbank wurde abgebrochen.\n" + utf8FromPath(file_));
        other("COMMIT");
        EXPECT_EQ(patience.asked, 3);
        EXPECT_EQ(patience.ended, 1);
        EXPECT_EQ(patience.lastReason, WaitReason::Lock);
        EXPECT_GE(patience.firstAsked.value(), milliseconds(500));
        EXPECT_LT(patience.firstAsked.value(), milliseconds(700));
        EXPECT_EQ(word(connection), "alt") << "the connection stays in use";
    }
}

TEST_F(SqliteLock, ATransactionThatCannotEndIsTakenBack)
{
    FakePatience patience(1);
    Connection connection;
    connection.setPatience(&patience);
    connection.Open(file_);
    other("BEGIN");
    other("SELECT * FROM Tafel"); // Readers hold back the end of a change.
    sqlite3_stmt* reading = nullptr;
    sqlite3_prepare_v2(other_, "SELECT * FROM Tafel", -1, &reading, nullptr);
    sqlite3_step(reading);
    faultText(FaultKind::GivenUp, [&] {
        Transaction together(connection);
        setWord(connection);
        together.commit();
    });
    sqlite3_finalize(reading);
    other("COMMIT");
    EXPECT_EQ(word(connection), "alt");
    setWord(connection);
    EXPECT_EQ(word(connection), "neu");
}

TEST_F(SqliteLock, WaitsWithoutAWordForHalfASecondAndGoesOnWhenTheLockGoes)
{
    FakePatience patience(1000);
    Connection connection;
    connection.setPatience(&patience);
    connection.Open(file_);
    for (const auto& [length, asked] : {std::pair(milliseconds(250), false), {milliseconds(800), true}}) {
        other("BEGIN EXCLUSIVE");
        const std::jthread release([&, wait = length] {
            std::this_thread::sleep_for(wait);
            sqlite3_exec(other_, "COMMIT", nullptr, nullptr, nullptr);
        });
        setWord(connection);
        EXPECT_EQ(patience.asked > 0, asked);
        EXPECT_EQ(patience.ended, asked ? 1 : 0);
        EXPECT_LT(patience.asked, 10) << "some twenty times a second";
    }
}

// What an interrupted program left must be taken back first, for which the file must be free.
TEST_F(SqliteLock, TakingBackWhatAnInterruptedProgramLeftIsAWaitAsWell)
{
    other("PRAGMA cache_size = 1");
    other("BEGIN IMMEDIATE");
    other("INSERT INTO Tafel (Wort) WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n WHERE i < 9999) "
          "SELECT 'halb' || i FROM n");
    const auto left = folder_ / "liegt.qv";
    std::filesystem::copy_file(file_, left);
    std::filesystem::path journal = file_;
    std::filesystem::copy_file(journal += "-journal", folder_ / "aside");
    other("ROLLBACK");

    open(left);
    other("PRAGMA journal_mode = OFF");
    other("BEGIN");
    sqlite3_stmt* reading = nullptr;
    sqlite3_prepare_v2(other_, "SELECT 1 FROM sqlite_schema", -1, &reading, nullptr);
    sqlite3_step(reading);
    std::filesystem::rename(folder_ / "aside", folder_ / "liegt.qv-journal");
    FakePatience patience(1);
    Connection connection;
    connection.setPatience(&patience);
    faultText(FaultKind::GivenUp, [&] { connection.Open(left); });
    EXPECT_EQ(patience.asked, 2);
    sqlite3_finalize(reading);
    other("COMMIT");
    connection.Open(left);
    EXPECT_EQ(word(connection), "alt");
}

} // namespace
} // namespace quelvarn::test
