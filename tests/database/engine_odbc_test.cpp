#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/connection.h"
#include "database/engine_fixture.h"
#include "database/faults.h"
#include "database/recordset.h"

#ifndef QUELVARN_NO_ODBC
#include "database/odbc/faults.h"
#include "database/open_engine.h"
#endif

#include <chrono>
#include <gmock/gmock.h>
#include <thread>

namespace quelvarn::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

class EngineOdbc : public EngineTest
{
protected:
    std::vector<RowKey> key()
    {
        std::vector<RowKey> all;
        for (const auto reader = engine_->read(select("Select Nr From Tafel"), WithKey::Yes); reader->next();)
            all.push_back(reader->key());
        return all;
    }
};
INSTANTIATE_TEST_SUITE_P(, EngineOdbc, ::testing::Values("OdbcSQLite", "OdbcPostgreSQL"), engineName);

// Each row differs from another in one cell alone, in a way that an equality of the program would pass over.
TEST_P(EngineOdbc, ARowWithoutAKeyIsHitAloneOrNotAtAll)
{
    const Value day = DateTime::from({2006, 3, 7, 13, 59, 1});
    const Value later = DateTime::from({2006, 3, 7, 13, 59, 4});
    const std::string longText = std::string(3000, 'x') + "ä";
    const std::vector<std::vector<Value>> rows{
        {"Welle", "kurz", 1, 0.1, day},
        {"WELLE", "kurz", 1, 0.1, day},
        {"Welle ", "kurz", 1, 0.1, day},
        {"Welle", Value{}, 1, 0.1, day},
        {"Welle", "", 1, 0.1, day},
        {"Welle", longText, 1, 0.1, day},
        {"Welle", longText + " ", 1, 0.1, day},
        {"Welle", "kurz", 2, 0.1, day},
        {"Welle", "kurz", Value{}, 0.1, day},
        {"Welle", "kurz", 1, 0.11, day},
        {"Welle", "kurz", 1, Value{}, day},
        {"Welle", "kurz", 1, 0.1, later},
        {"Welle", "kurz", 1, 0.1, Value{}},
        {"doppelt", "", 3, 1.0, day},
        {"doppelt", "", 3, 1.0, day},
    };
    fill({{"Wort", FieldType::Text},
          {"Notiz", FieldType::Text},
          {"Nr", FieldType::Integer},
          {"Zahl", FieldType::FloatingPoint},
          {"Tag", FieldType::Date}},
         rows);
    const std::vector<RowKey> all = key();
    ASSERT_EQ(all.size(), rows.size());
    EXPECT_EQ(key(), all) << "the same rows have the same keys again";
    const sql::Assignment fresh[] = {{"Nr", std::int64_t{50}}, {"Notiz", Value{}}};
    for (std::size_t i = 0; i + 2 < all.size(); ++i) {
        EXPECT_TRUE(engine_->update("Tafel", all[i], fresh)) << i;
        EXPECT_THAT(read("Select Count(*) From Tafel Where Nr = 50"), ElementsAre("1")) << i;
        EXPECT_TRUE(engine_->remove("Tafel", all[i])) << i;
        EXPECT_FALSE(engine_->remove("Tafel", all[i])) << i;
        EXPECT_THAT(read("Select Count(*) From Tafel"), ElementsAre(std::to_string(all.size() - 1 - i)));
    }
    for (const RowKey twice : {all.back(), all[all.size() - 2]}) {
        EXPECT_THROW(engine_->remove("Tafel", twice), RuntimeError);
        EXPECT_THROW(engine_->update("Tafel", twice, fresh), RuntimeError);
    }
    EXPECT_THAT(read("Select Wort, Nr From Tafel"), ElementsAre("doppelt|3", "doppelt|3"));
}

TEST_P(EngineOdbc, WhatAnotherProgramChangedIsNotWrittenOver)
{
    fill({{"Wort", FieldType::Text}, {"Nr", FieldType::Integer}}, {{"a", 1}, {"b", 2}, {"c", 3}, {"d", 4}, {"e", 5}});
    const std::vector<RowKey> all = key();
    const auto second = open();
    second->execute(sql::parseStatement("Update Tafel Set Nr = 20 Where Wort = 'b'"));
    const sql::Assignment fresh[] = {{"Nr", std::int64_t{50}}};
    EXPECT_FALSE(engine_->update("Tafel", all[1], fresh));
    EXPECT_FALSE(engine_->remove("Tafel", all[1]));
    EXPECT_THAT(read("Select Nr From Tafel Where Wort = 'b'"), ElementsAre("20"));

    const std::string columns[] = {"Nr", "Wort"};
    EXPECT_THAT(rows(*engine_->readRows("Tafel", columns, all)), UnorderedElementsAre("1|a", "3|c", "4|d", "5|e"));
}

TEST_P(EngineOdbc, ANewRowIsWrittenAgainByItsKey)
{
    fill({{"Wort", FieldType::Text}, {"Nr", FieldType::Integer}}, {{"a", 1}});
    Connection connection(engine_);
    Recordset rs;
    rs.Open("Select * From Tafel Order By Wort", connection, CursorType::Static, LockType::Optimistic);
    rs.AddNew();
    rs.setField("Wort", "neu");
    rs.Update();
    for (std::int64_t number = 7; number < 10; ++number) {
        rs.setField("Nr", number);
        rs.Update();
    }
    EXPECT_THAT(read("Select Wort, Nr From Tafel Order By Wort"), ElementsAre("a|1", "neu|9"));
    rs.Delete();
    EXPECT_THAT(read("Select Wort, Nr From Tafel"), ElementsAre("a|1"));
}

TEST_P(EngineOdbc, AChangeTakenBackLeavesTheKeysGood)
{
    fill({{"Wort", FieldType::Text}, {"Nr", FieldType::Integer}}, {{"a", 1}, {"b", 2}, {"c", 3}});
    const std::vector<RowKey> all = key();
    const sql::Assignment fresh[] = {{"Nr", std::int64_t{50}}};
    const sql::Assignment other[] = {{"Nr", std::int64_t{60}}};
    engine_->begin();
    EXPECT_TRUE(engine_->update("Tafel", all[0], fresh));
    engine_->begin();
    EXPECT_TRUE(engine_->update("Tafel", all[0], other));
    EXPECT_TRUE(engine_->remove("Tafel", all[1]));
    engine_->rollBack();
    EXPECT_TRUE(engine_->remove("Tafel", all[1]));
    engine_->commit();
    EXPECT_THAT(read("Select Wort, Nr From Tafel"), UnorderedElementsAre("a|50", "c|3"));
    engine_->begin();
    EXPECT_TRUE(engine_->remove("Tafel", all[0]));
    EXPECT_TRUE(engine_->update("Tafel", all[2], fresh));
    engine_->rollBack();
    EXPECT_TRUE(engine_->update("Tafel", all[0], other));
    EXPECT_TRUE(engine_->remove("Tafel", all[2]));
    EXPECT_THAT(read("Select Wort, Nr From Tafel"), ElementsAre("a|60"));
}

const std::filesystem::path PROBE = QUELVARN_TEST_DATA "/werk-a.mdb";

// The reader behind this driver knows simple conditions only: no order, no DISTINCT, no bound values, no writing, and
// Null reads as an empty text or the other way round. What it can do shows that the Access dialect meets a real file.
TEST(EngineAccess, ReadsARealFileThroughTheDriverOfMdbtools)
{
    if (!hasOdbcDriver(ODBC_DRIVER_MDB))
        GTEST_SKIP() << "the ODBC driver of mdbtools is not here";
    const auto engine = openOdbc("DRIVER={" + std::string(ODBC_DRIVER_MDB) + "};DBQ=" + driverPath(PROBE));
    EXPECT_EQ(engine->name(), "Access");
    EXPECT_EQ(engine->tables().size(), 25U);
    const auto table = engine->findTable("PARTTABELLE");
    ASSERT_TRUE(table);
    const auto type = [&](std::string_view name) {
        return std::ranges::find(table->columns, name, &ColumnInfo::name)->type;
    };
    EXPECT_EQ(type("DokuBez"), FieldType::Text);
    EXPECT_EQ(type("Status"), FieldType::Integer);
    EXPECT_EQ(type("Erstellt"), FieldType::Date);

    Connection connection(engine);
    Recordset rs;
    rs.Open("Select * From PartTabelle", connection);
    EXPECT_EQ(rs.RecordCount(), 1402U);
    rs.Filter("DokuBez = 'FA-1280-413'");
    ASSERT_GE(rs.RecordCount(), 1U);
    EXPECT_EQ(rs.field("Erstellt"), Value(DateTime::from({1998, 1, 12, 14, 26, 42})));
    rs.Open("Select Feld4 From Ini", connection);
    rs.Filter("Feld4 = 'Geändert am'");
    EXPECT_EQ(rs.RecordCount(), 1U);
    rs.Open("Select DokuBez From PartTabelle Where Status = 3", connection);
    EXPECT_GT(rs.RecordCount(), 0U);
    EXPECT_LT(rs.RecordCount(), 1402U);
    // With row keys, which take every column of the table.
    rs.Open("Select DokuBez, RevBez, Status From PartTabelle", connection, CursorType::Static, LockType::Optimistic);
    EXPECT_EQ(rs.RecordCount(), 1402U);
    EXPECT_THROW(engine->createTable({"Neu", {{"x"}}, {}}), RuntimeError);
}

// Runs as an entry of its own in ctest, where the driver of mdbtools bears that name.
TEST(EngineAccess, OpensInPlaceWhereADriverOfItsNameIsInstalled)
{
    if (!hasOdbcDriver(ODBC_DRIVER_ACCESS))
        GTEST_SKIP() << "no ODBC driver bears the name of that of Access";
    Connection connection;
    connection.Open(PROBE);
    EXPECT_EQ(connection.engine().name(), "Access");
    Recordset rs;
    rs.Open("Select * From Ini", connection);
    EXPECT_EQ(rs.RecordCount(), 210U);
}

// The Access file is shared with other programs: a lock is waited for a moment, then told.
TEST(EngineAccess, ALockOfAnotherProgramIsWaitedForAndThenTold)
{
    if (!hasOdbcDriver(ODBC_DRIVER_SQLITE))
        GTEST_SKIP() << "the ODBC driver of SQLite is not installed";
    const TempFolder folder;
    const auto other = openSqlite(folder / "test.qv", true);
    other->createTable({"Tafel", {{"Wort"}}, {}});
    const auto engine = openOdbc(odbcText(folder / "test.qv", 1));
    const sql::Assignment values[] = {{"Wort", "x"}};
    other->begin();
    other->insert("Tafel", values);
    {
        const std::jthread release([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(150));
            other->commit();
        });
        EXPECT_NO_THROW(engine->insert("Tafel", values));
    }
    other->begin();
    other->insert("Tafel", values);
    try {
        engine->insert("Tafel", values);
        ADD_FAILURE();
    } catch (const RuntimeError& fault) {
        EXPECT_THAT(fault.description(), HasSubstr("durch ein anderes Programm gesperrt"));
    }
    other->rollBack();
}

#ifndef QUELVARN_NO_ODBC
// The numbers of Access, whose driver is not everywhere.
TEST(EngineAccess, FaultsAreToldInGermanByTheirNumberOrState)
{
    using odbc::faultOf;
    const struct
    {
        odbc::Failure failure;
        FaultKind kind;
        const char* sentence;
    } cases[] = {
        {{"HY000", -1811, "Could not find file."}, FaultKind::FileGone, "Die Datenbank ist nicht mehr vorhanden."},
        {{"S1000", -1022, "Disk error."}, FaultKind::ConnectionLost, "Die Verbindung zur Datenbank ist unterbrochen."},
        {{"08S01", 35, "Link failure"}, FaultKind::ConnectionLost, "Die Verbindung zur Datenbank ist unterbrochen."},
        {{"28000", -1905, "Password"}, FaultKind::WrongPassword, "Die Anmeldung an der Datenbank wurde abgelehnt."},
        {{"HYT00", 0, "Timeout"}, FaultKind::Locked, "Die Datenbank ist durch ein anderes Programm gesperrt."},
        {{"HY000", 11, "Not SQLite"}, FaultKind::Other, "Die Datenbank meldet einen Fehler."},
        {{"42000", -3100, "Syntax error"}, FaultKind::Other, "Die Datenbank meldet einen Fehler."},
    };
    for (const auto& [failure, kind, sentence] : cases) {
        const DatabaseFault fault = faultOf(failure, {"Access", "W:\\werk.mdb"});
        EXPECT_EQ(fault.kind(), kind) << failure.words;
        EXPECT_EQ(fault.description(), std::string(sentence) + "\nW:\\werk.mdb\n" + failure.words);
        EXPECT_EQ(fault.number(), failure.sqlstate == "42000" ? FAULT_STATEMENT : FAULT_GENERAL);
    }
    EXPECT_EQ(faultOf({"HY000", 11, "malformed"}, {"SQLite", ""}).kind(), FaultKind::Damaged);
}
#endif

TEST(EngineAccess, FaultsOfADriverAreTold)
{
    if (!hasOdbcDriver(ODBC_DRIVER_SQLITE))
        GTEST_SKIP() << "no ODBC here";
    try {
        openOdbc("DRIVER={Den gibt es nicht}");
        ADD_FAILURE();
    } catch (const RuntimeError& fault) {
        EXPECT_EQ(fault.source(), "ODBC");
        EXPECT_THAT(fault.description(), HasSubstr("Driver Manager"));
    }
}

} // namespace
} // namespace quelvarn::test
