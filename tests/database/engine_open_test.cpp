#include "base/file_path.h"
#include "base/runtime_error.h"
#include "database/connection.h"
#include "database/engine_fixture.h"
#include "database/new_database.h"
#include "database/open_engine.h"
#include "fakes/temp_folder.h"

#include <atomic>
#include <fstream>
#include <gmock/gmock.h>
#include <sqlite3.h>
#include <thread>

namespace quelvarn::test {
namespace {

using ::testing::HasSubstr;

std::string faultText(const std::function<void()>& call)
{
    try {
        call();
    } catch (const RuntimeError& fault) {
        return fault.description();
    }
    return "no fault";
}

TEST(DatabaseFile, IsToldByItsFirstBytes)
{
    using namespace std::string_literals;
    const TempFolder folder;
    struct TestCase
    {
        std::string content;
        DatabaseKind kind;
        ::testing::Matcher<std::string> fault; // On opening.
    };
    const bool hasAccess = hasOdbcDriver(ODBC_DRIVER_ACCESS);
    const ::testing::Matcher<std::string> access = HasSubstr(hasAccess ? "Der ODBC-Treiber" : "Treiber für Access");
    const TestCase cases[] = {
        {"\0\1\0\0Standard Jet DB\0\1"s, DatabaseKind::Access, access},
        {"\0\1\0\0Standard ACE DB\0\2"s, DatabaseKind::Access, access},
        {"\xEF\xBB\xBFPostgreSQL://127.0.0.1:1/qv \r\nzweite Zeile", DatabaseKind::PostgreSQL, HasSubstr("PostgreSQL")},
        {"postgres://127.0.0.1:1/qv", DatabaseKind::PostgreSQL, HasSubstr("PostgreSQL")},
        {"", DatabaseKind::Unknown, HasSubstr("ist keine Datenbank dieses Programms.")},
        {"\0\1\0\0Standard", DatabaseKind::Unknown, HasSubstr("ist keine Datenbank dieses Programms.")},
        {"Notiz: postgresql://x", DatabaseKind::Unknown, HasSubstr("ist keine Datenbank dieses Programms.")},
        {"SQLite format 3\0"s + std::string(5000, '\x7'), DatabaseKind::SQLite,
         HasSubstr("Die Datenbank ist beschädigt.")},
    };
    for (const TestCase& testCase : cases) {
        const auto documentPath = folder / "Prüfung.mdb";
        std::ofstream(documentPath, std::ios::binary) << testCase.content;
        EXPECT_EQ(recognizeDatabase(documentPath), testCase.kind) << testCase.content;
        EXPECT_THAT(faultText([&] { Connection().Open(documentPath); }), testCase.fault) << testCase.content;
    }
    EXPECT_THAT(faultText([&] { recognizeDatabase(folder / "fehlt.mdb"); }), HasSubstr("wurde nicht gefunden"));
    EXPECT_THAT(faultText([&] { recognizeDatabase(folder.path()); }), HasSubstr("kann nicht gelesen werden"));
}

TEST(DatabaseFile, ConnectionExecutesChangesButNoQueries)
{
    const TempFolder folder;
    const auto documentPath = folder / "register.qv";
    createRegister(*openSqlite(documentPath, true));

    Connection connection;
    EXPECT_THAT(faultText([&] { connection.execute("Delete From Ini"); }), HasSubstr("nicht geöffnet"));
    connection.openAddress(utf8FromPath(documentPath));
    EXPECT_EQ(connection.execute("Insert Into Ini (Feld1, Feld2) Values ('mm', 'Plot')"), 1);
    {
        Transaction discarded(connection);
        EXPECT_EQ(connection.execute("Delete From Ini"), 1);
    }
    {
        Transaction valid(connection);
        EXPECT_EQ(connection.execute("Update Ini Set Feld3 = 'x' Where Feld1 = 'MM'"), 1);
        valid.commit();
    }
    EXPECT_EQ(connection.execute("Delete From Ini Where Feld3 = 'x'"), 1);
    EXPECT_NE(faultText([&] { connection.execute("Select * From Ini"); }), "no fault");
    EXPECT_NE(faultText([&] { connection.execute("Delete From Ini; Delete From Ini"); }), "no fault");
}

TEST(DatabaseFile, TakesCellsAndColumnsOfAnotherMakersFile)
{
    const TempFolder folder;
    const auto documentPath = folder / "fremd.qv";
    sqlite3* fremd = nullptr;
    sqlite3_open(utf8FromPath(documentPath).c_str(), &fremd);
    const int result = sqlite3_exec(
        fremd,
        "CREATE TABLE partTABELLE (DokuBez VARCHAR(50) COLLATE NOCASE, Status SMALLINT, Erstellt TIMESTAMP, "
        "Gewicht NUMERIC); "
        "INSERT INTO PartTabelle VALUES ('a', 'offen', 'gestern', 3), ('b', 2, '2006-03-07', 2.5);",
        nullptr, nullptr, nullptr);
    sqlite3_close(fremd);
    ASSERT_EQ(result, SQLITE_OK);
    const auto engine = openSqlite(documentPath, false);
    EXPECT_EQ(engine->findTable("PartTabelle")->columns,
              (std::vector<ColumnInfo>{{"DokuBez", FieldType::Text},
                                       {"Status", FieldType::Integer},
                                       {"Erstellt", FieldType::Date},
                                       {"Gewicht", FieldType::FloatingPoint}}));
    const auto reader =
        engine->read(std::get<sql::Select>(sql::parseStatement("Select * From PartTabelle")), WithKey::Yes);
    ASSERT_TRUE(reader->next());
    EXPECT_EQ(reader->value(1), Value("offen"));
    EXPECT_EQ(reader->value(2), Value("gestern"));
    EXPECT_EQ(reader->value(3), Value(3.0));
    ASSERT_TRUE(reader->next());
    EXPECT_EQ(reader->value(2), Value(DateTime::from({2006, 3, 7})));
}

class EngineWriters : public EngineTest
{};
// SQLite's ODBC driver asks for the write lock too late: two writers may block each other.
INSTANTIATE_TEST_SUITE_P(, EngineWriters, ::testing::Values("SQLite", "PostgreSQL", "OdbcPostgreSQL"), engineName);

// Several seats of the office write and read at once; none may see a fault or lose a row.
TEST_P(EngineWriters, ManyAtOnceLoseNothing)
{
    fill({{"Name", FieldType::Text}, {"Nummer", FieldType::Integer}}, {}, {{{"Name", false}}});
    std::atomic<int> written = 0;
    std::atomic<int> fault = 0;
    const auto place = [&](int number) {
        try {
            const auto engine = open();
            const std::string name = "Platz " + std::to_string(number);
            const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(1500);
            for (std::int64_t numberThere = 0; std::chrono::steady_clock::now() < end; ++numberThere) {
                const sql::Assignment values[] = {{"Name", name}, {"Nummer", numberThere}};
                engine->begin();
                const auto row = engine->insert("Tafel", values);
                engine->update("Tafel", row, values);
                engine->commit();
                ++written;
                const auto rows = EngineTest::rows(*engine->read(select("Select Name From Tafel"), {}));
                if (rows.empty())
                    ++fault;
            }
        } catch (const RuntimeError& caught) {
            ADD_FAILURE() << caught.description();
        }
    };
    std::vector<std::jthread> places;
    for (int number = 0; number < 4; ++number)
        places.emplace_back(place, number);
    places.clear();
    EXPECT_EQ(fault, 0);
    EXPECT_GT(written, 20);
    EXPECT_EQ(read("Select Count(*) From Tafel").front(), std::to_string(written));
}

} // namespace
} // namespace quelvarn::test
