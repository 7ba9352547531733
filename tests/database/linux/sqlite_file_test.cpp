#include "base/file_path.h"
#include "database/catalog.h"
#include "database/connection.h"
#include "database/faults.h"
#include "database/open_engine.h"
#include "database/recordset.h"
#include "database/recordset_columns.h"
#include "fakes/temp_folder.h"

#include <fcntl.h>
#include <fstream>
#include <gmock/gmock.h>
#include <sqlite3.h>
#include <unistd.h>

namespace quelvarn::test {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::StartsWith;

// A register whose file or share goes under an open connection.
class SqliteFile : public ::testing::Test
{
protected:
    SqliteFile()
    {
        fs::create_directory(share_);
        make(file_, "alt");
        connection_.Open(file_);
    }

    static void make(const fs::path& file, const char* word)
    {
        const auto engine = openSqlite(file, true);
        engine->createTable({"Tafel", {{"Wort"}, {"Bild"}}, {}});
        const sql::Assignment values[] = {{"Wort", word}, {"Bild", "b"}};
        for (int i = 0; i < 20; ++i)
            engine->insert("Tafel", values);
    }
    // Every handle on the file reads nothing any more, as those of a share that is gone.
    void breakHandles()
    {
        const int dead = ::open(folder_.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        int broken = 0;
        for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
            std::error_code ignored;
            const int number = std::stoi(entry.path().filename());
            if (fs::read_symlink(entry.path(), ignored).string().starts_with(folder_.path().string() + "/")) {
                dup2(dead, number);
                ++broken;
            }
        }
        ::close(dead);
        EXPECT_GT(broken, 0);
    }

    std::string word()
    {
        Recordset rows;
        rows.Open("Select Wort From Tafel", connection_);
        return rows.Text("Wort");
    }
    void setWord() { connection_.execute("Update Tafel Set Wort = 'neu'"); }

    // The kind of the call's fault, and its text.
    static std::pair<FaultKind, std::string> faultOf(const std::function<void()>& call)
    {
        try {
            call();
        } catch (const DatabaseFault& fault) {
            return {fault.kind(), fault.description()};
        }
        ADD_FAILURE() << "no fault";
        return {FaultKind::Other, ""};
    }
    std::string path() const { return utf8FromPath(file_); }

    TempFolder folder_;
    fs::path share_ = folder_ / "freigabe";
    fs::path file_ = share_ / "werk.mdb";
    Connection connection_;
};

TEST_F(SqliteFile, AShareThatGoesAndComesBackIsOpenedAgainByTheNextStatement)
{
    Recordset open;
    setWholeLimit(open, 1); // Columns are read later.
    open.Open("Select * From Tafel Order By Wort", connection_);
    fs::rename(share_, folder_ / "weg");
    breakHandles();
    EXPECT_EQ(connection_.fileState(), FileState::Away);
    const std::string away = "Die Verbindung zur Datenbank ist unterbrochen.\n" + path();
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(faultOf([&] { word(); }), std::pair(FaultKind::ConnectionLost, away));
        EXPECT_EQ(faultOf([&] { open.cell(3, "Bild"); }), std::pair(FaultKind::ConnectionLost, away));
        EXPECT_EQ(faultOf([&] { setWord(); }), std::pair(FaultKind::ConnectionLost, away));
        EXPECT_EQ(faultOf([&] { const Transaction t(connection_); }), std::pair(FaultKind::ConnectionLost, away));
    }
    fs::rename(folder_ / "weg", share_);
    EXPECT_EQ(connection_.fileState(), FileState::Same);
    EXPECT_EQ(open.cell(3, "Bild"), Value("b")) << "its rows are known by their keys";
    setWord();
    EXPECT_EQ(word(), "neu");
    EXPECT_TRUE(loadColumn(open, "Bild"));
}

TEST_F(SqliteFile, AReadIsRepeatedAChangeNever)
{
    word();
    breakHandles();
    EXPECT_EQ(word(), "alt");
    breakHandles();
    {
        Transaction together(connection_);
        setWord();
        together.commit();
    }
    EXPECT_EQ(word(), "neu") << "nothing was written when the transaction began";
    connection_.execute("Update Tafel Set Wort = 'alt'");
    breakHandles();
    EXPECT_EQ(faultOf([&] { setWord(); }).first, FaultKind::ConnectionLost);
    EXPECT_EQ(word(), "alt");
    setWord();
    EXPECT_EQ(word(), "neu");
    {
        Transaction together(connection_);
        connection_.execute("Update Tafel Set Wort = 'halb'");
        breakHandles();
        faultOf([&] { together.commit(); });
    }
    EXPECT_EQ(word(), "neu") << "all or nothing";
}

TEST_F(SqliteFile, ADeletedOrReplacedFileTakesNoChanges)
{
    const auto deleted = [&](FaultKind kind, const std::string& sentence) {
        EXPECT_EQ(faultOf([&] { setWord(); }), std::pair(kind, sentence + "\n" + path()));
        EXPECT_EQ(faultOf([&] { const Transaction t(connection_); }).first, kind);
        EXPECT_EQ(word(), "alt") << "what was read can still be shown";
    };
    fs::rename(file_, folder_ / "aside");
    EXPECT_EQ(connection_.fileState(), FileState::Gone);
    deleted(FaultKind::FileGone, "Die Datenbank ist nicht mehr vorhanden.");
    make(file_, "fremd");
    EXPECT_EQ(connection_.fileState(), FileState::Replaced);
    deleted(FaultKind::FileReplaced, "Die Datenbank wurde durch eine andere Datei ersetzt.");
    breakHandles();
    EXPECT_EQ(faultOf([&] { word(); }).first, FaultKind::FileReplaced) << "keys of one file mean nothing in another";
    fs::rename(folder_ / "aside", file_);
    EXPECT_EQ(connection_.fileState(), FileState::Same);
    setWord();
    EXPECT_EQ(word(), "neu");
}

TEST_F(SqliteFile, WhatTheEngineSaysIsToldInGerman)
{
    const auto told = [&](FaultKind kind, const std::string& text, const std::function<void()>& call) {
        const auto [found, words] = faultOf(call);
        EXPECT_EQ(found, kind) << words;
        EXPECT_THAT(words, StartsWith(text + "\n" + path()));
        return words;
    };
    // A trigger of another program.
    sqlite3* other = nullptr;
    sqlite3_open(path().c_str(), &other);
    sqlite3_exec(other, "CREATE TRIGGER t BEFORE UPDATE ON Tafel BEGIN SELECT RAISE(ABORT, 'nein'); END", nullptr,
                 nullptr, nullptr);
    EXPECT_THAT(told(FaultKind::Other, "Die Datenbank meldet einen Fehler.", [&] { setWord(); }), HasSubstr("nein"));
    sqlite3_exec(other, "DROP TRIGGER t; DROP TABLE Tafel", nullptr, nullptr, nullptr);
    try {
        word();
        ADD_FAILURE();
    } catch (const RuntimeError& fault) {
        EXPECT_EQ(fault.number(), FAULT_STATEMENT);
        EXPECT_THAT(fault.description(), HasSubstr("no such table"));
    }
    sqlite3_close(other);
    connection_.Close();

    fs::remove(file_);
    make(file_, "alt");
    // The administrator may write everywhere.
    const bool administrator = geteuid() == 0;
    fs::permissions(share_, fs::perms(0555));
    fs::permissions(file_, fs::perms(0666));
    ASSERT_TRUE(!administrator || seteuid(65534) == 0);
    connection_.Open(file_);
    told(FaultKind::NoRight, "Für die Datenbank fehlen die nötigen Rechte.", [&] { setWord(); });
    ASSERT_TRUE(!administrator || seteuid(0) == 0);
    fs::permissions(share_, fs::perms(0777));
    fs::permissions(file_, fs::perms(0444));
    ASSERT_TRUE(!administrator || seteuid(65534) == 0);
    connection_.Open(file_);
    told(FaultKind::ReadOnly, "Die Datenbank ist schreibgeschützt.", [&] { setWord(); });
    ASSERT_TRUE(!administrator || seteuid(0) == 0);
    connection_.Close();

    fs::permissions(file_, fs::perms(0644));
    fs::resize_file(file_, fs::file_size(file_) / 2);
    told(FaultKind::Damaged, "Die Datenbank ist beschädigt.", [&] {
        connection_.Open(file_);
        setWord();
    });
}

} // namespace
} // namespace quelvarn::test
