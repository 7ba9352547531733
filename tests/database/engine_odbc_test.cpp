#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/connection.h"
#include "database/engine_fixture.h"
#include "database/faults.h"
#include "database/recordset.h"

#ifndef QUELVARN_NO_ODBC
#include "database/odbc/faults.h"
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
    std::vector<Zeilenschluessel> schluessel()
    {
        std::vector<Zeilenschluessel> alle;
        for (const auto leser = engine_->lese(select("Select Nr From Tafel"), MitSchluessel::Ja); leser->next();)
            alle.push_back(leser->schluessel());
        return alle;
    }
};
INSTANTIATE_TEST_SUITE_P(, EngineOdbc, ::testing::Values("OdbcSQLite", "OdbcPostgreSQL"), engineName);

// Each row differs from another in one cell alone, in a way that an equality of the program would pass over.
TEST_P(EngineOdbc, ARowWithoutAKeyIsHitAloneOrNotAtAll)
{
    const Value tag = Zeitpunkt::aus({2006, 3, 7, 13, 59, 1});
    const Value spaeter = Zeitpunkt::aus({2006, 3, 7, 13, 59, 4});
    const std::string lang = std::string(3000, 'x') + "ä";
    const std::vector<std::vector<Value>> zeilen{
        {"Welle", "kurz", 1, 0.1, tag},     {"WELLE", "kurz", 1, 0.1, tag},     {"Welle ", "kurz", 1, 0.1, tag},
        {"Welle", Value{}, 1, 0.1, tag},    {"Welle", "", 1, 0.1, tag},         {"Welle", lang, 1, 0.1, tag},
        {"Welle", lang + " ", 1, 0.1, tag}, {"Welle", "kurz", 2, 0.1, tag},     {"Welle", "kurz", Value{}, 0.1, tag},
        {"Welle", "kurz", 1, 0.11, tag},    {"Welle", "kurz", 1, Value{}, tag}, {"Welle", "kurz", 1, 0.1, spaeter},
        {"Welle", "kurz", 1, 0.1, Value{}}, {"doppelt", "", 3, 1.0, tag},       {"doppelt", "", 3, 1.0, tag},
    };
    fuelle({{"Wort", FeldTyp::Text},
            {"Notiz", FeldTyp::Text},
            {"Nr", FeldTyp::Ganzzahl},
            {"Zahl", FeldTyp::Gleitkomma},
            {"Tag", FeldTyp::Datum}},
           zeilen);
    const std::vector<Zeilenschluessel> alle = schluessel();
    ASSERT_EQ(alle.size(), zeilen.size());
    EXPECT_EQ(schluessel(), alle) << "the same rows have the same keys again";
    const sql::Zuweisung neu[] = {{"Nr", std::int64_t{50}}, {"Notiz", Value{}}};
    for (std::size_t i = 0; i + 2 < alle.size(); ++i) {
        EXPECT_TRUE(engine_->aendere("Tafel", alle[i], neu)) << i;
        EXPECT_THAT(lies("Select Count(*) From Tafel Where Nr = 50"), ElementsAre("1")) << i;
        EXPECT_TRUE(engine_->loesche("Tafel", alle[i])) << i;
        EXPECT_FALSE(engine_->loesche("Tafel", alle[i])) << i;
        EXPECT_THAT(lies("Select Count(*) From Tafel"), ElementsAre(std::to_string(alle.size() - 1 - i)));
    }
    for (const Zeilenschluessel doppelt : {alle.back(), alle[alle.size() - 2]}) {
        EXPECT_THROW(engine_->loesche("Tafel", doppelt), Laufzeitfehler);
        EXPECT_THROW(engine_->aendere("Tafel", doppelt, neu), Laufzeitfehler);
    }
    EXPECT_THAT(lies("Select Wort, Nr From Tafel"), ElementsAre("doppelt|3", "doppelt|3"));
}

TEST_P(EngineOdbc, WhatAnotherProgramChangedIsNotWrittenOver)
{
    fuelle({{"Wort", FeldTyp::Text}, {"Nr", FeldTyp::Ganzzahl}}, {{"a", 1}, {"b", 2}, {"c", 3}, {"d", 4}, {"e", 5}});
    const std::vector<Zeilenschluessel> alle = schluessel();
    const auto zweite = oeffne();
    zweite->fuehreAus(sql::parseAnweisung("Update Tafel Set Nr = 20 Where Wort = 'b'"));
    const sql::Zuweisung neu[] = {{"Nr", std::int64_t{50}}};
    EXPECT_FALSE(engine_->aendere("Tafel", alle[1], neu));
    EXPECT_FALSE(engine_->loesche("Tafel", alle[1]));
    EXPECT_THAT(lies("Select Nr From Tafel Where Wort = 'b'"), ElementsAre("20"));

    const std::string spalten[] = {"Nr", "Wort"};
    EXPECT_THAT(zeilen(*engine_->leseZeilen("Tafel", spalten, alle)), UnorderedElementsAre("1|a", "3|c", "4|d", "5|e"));
}

TEST_P(EngineOdbc, ANewRowIsWrittenAgainByItsKey)
{
    fuelle({{"Wort", FeldTyp::Text}, {"Nr", FeldTyp::Ganzzahl}}, {{"a", 1}});
    Connection verbindung(engine_);
    Recordset rs;
    rs.Open("Select * From Tafel Order By Wort", verbindung, CursorTyp::Statisch, SperrTyp::Optimistisch);
    rs.AddNew();
    rs.setzeFeld("Wort", "neu");
    rs.Update();
    for (std::int64_t nummer = 7; nummer < 10; ++nummer) {
        rs.setzeFeld("Nr", nummer);
        rs.Update();
    }
    EXPECT_THAT(lies("Select Wort, Nr From Tafel Order By Wort"), ElementsAre("a|1", "neu|9"));
    rs.Delete();
    EXPECT_THAT(lies("Select Wort, Nr From Tafel"), ElementsAre("a|1"));
}

TEST_P(EngineOdbc, AChangeTakenBackLeavesTheKeysGood)
{
    fuelle({{"Wort", FeldTyp::Text}, {"Nr", FeldTyp::Ganzzahl}}, {{"a", 1}, {"b", 2}, {"c", 3}});
    const std::vector<Zeilenschluessel> alle = schluessel();
    const sql::Zuweisung neu[] = {{"Nr", std::int64_t{50}}};
    const sql::Zuweisung neuer[] = {{"Nr", std::int64_t{60}}};
    engine_->beginne();
    EXPECT_TRUE(engine_->aendere("Tafel", alle[0], neu));
    engine_->beginne();
    EXPECT_TRUE(engine_->aendere("Tafel", alle[0], neuer));
    EXPECT_TRUE(engine_->loesche("Tafel", alle[1]));
    engine_->nimmZurueck();
    EXPECT_TRUE(engine_->loesche("Tafel", alle[1]));
    engine_->schliesseAb();
    EXPECT_THAT(lies("Select Wort, Nr From Tafel"), UnorderedElementsAre("a|50", "c|3"));
    engine_->beginne();
    EXPECT_TRUE(engine_->loesche("Tafel", alle[0]));
    EXPECT_TRUE(engine_->aendere("Tafel", alle[2], neu));
    engine_->nimmZurueck();
    EXPECT_TRUE(engine_->aendere("Tafel", alle[0], neuer));
    EXPECT_TRUE(engine_->loesche("Tafel", alle[2]));
    EXPECT_THAT(lies("Select Wort, Nr From Tafel"), ElementsAre("a|60"));
}

const std::filesystem::path PROBE = QUELVARN_TEST_DATA "/werk-a.mdb";

// The reader behind this driver knows simple conditions only: no order, no DISTINCT, no bound values, no writing, and
// Null reads as an empty text or the other way round. What it can do shows that the Access dialect meets a real file.
TEST(EngineAccess, ReadsARealFileThroughTheDriverOfMdbtools)
{
    if (!hatOdbcTreiber(ODBC_TREIBER_MDB))
        GTEST_SKIP() << "the ODBC driver of mdbtools is not here";
    const auto engine = oeffneOdbc("DRIVER={" + std::string(ODBC_TREIBER_MDB) + "};DBQ=" + treiberPfad(PROBE));
    EXPECT_EQ(engine->name(), "Access");
    EXPECT_EQ(engine->tabellen().size(), 25U);
    const auto tabelle = engine->findTabelle("PARTTABELLE");
    ASSERT_TRUE(tabelle);
    const auto typ = [&](std::string_view name) {
        return std::ranges::find(tabelle->spalten, name, &Spalte::name)->typ;
    };
    EXPECT_EQ(typ("DokuBez"), FeldTyp::Text);
    EXPECT_EQ(typ("Status"), FeldTyp::Ganzzahl);
    EXPECT_EQ(typ("Erstellt"), FeldTyp::Datum);

    Connection verbindung(engine);
    Recordset rs;
    rs.Open("Select * From PartTabelle", verbindung);
    EXPECT_EQ(rs.RecordCount(), 1402U);
    rs.Filter("DokuBez = 'FA-1280-413'");
    ASSERT_GE(rs.RecordCount(), 1U);
    EXPECT_EQ(rs.Feld("Erstellt"), Value(Zeitpunkt::aus({1998, 1, 12, 14, 26, 42})));
    rs.Open("Select Feld4 From Ini", verbindung);
    rs.Filter("Feld4 = 'Geändert am'");
    EXPECT_EQ(rs.RecordCount(), 1U);
    rs.Open("Select DokuBez From PartTabelle Where Status = 3", verbindung);
    EXPECT_GT(rs.RecordCount(), 0U);
    EXPECT_LT(rs.RecordCount(), 1402U);
    // With row keys, which take every column of the table.
    rs.Open("Select DokuBez, RevBez, Status From PartTabelle", verbindung, CursorTyp::Statisch, SperrTyp::Optimistisch);
    EXPECT_EQ(rs.RecordCount(), 1402U);
    EXPECT_THROW(engine->legeTabelleAn({"Neu", {{"x"}}, {}}), Laufzeitfehler);
}

// Runs as an entry of its own in ctest, where the driver of mdbtools bears that name.
TEST(EngineAccess, OpensInPlaceWhereADriverOfItsNameIsInstalled)
{
    if (!hatOdbcTreiber(ODBC_TREIBER_ACCESS))
        GTEST_SKIP() << "no ODBC driver bears the name of that of Access";
    Connection verbindung;
    verbindung.Open(PROBE);
    EXPECT_EQ(verbindung.engine().name(), "Access");
    Recordset rs;
    rs.Open("Select * From Ini", verbindung);
    EXPECT_EQ(rs.RecordCount(), 210U);
}

// The Access file is shared with other programs: a lock is waited for a moment, then told.
TEST(EngineAccess, ALockOfAnotherProgramIsWaitedForAndThenTold)
{
    if (!hatOdbcTreiber(ODBC_TREIBER_SQLITE))
        GTEST_SKIP() << "the ODBC driver of SQLite is not installed";
    const TempFolder ordner;
    const auto anderes = oeffneSqlite(ordner / "test.qv", true);
    anderes->legeTabelleAn({"Tafel", {{"Wort"}}, {}});
    const auto engine = oeffneOdbc(odbcText(ordner / "test.qv", 1));
    const sql::Zuweisung werte[] = {{"Wort", "x"}};
    anderes->beginne();
    anderes->fuegeEin("Tafel", werte);
    {
        const std::jthread freigabe([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(150));
            anderes->schliesseAb();
        });
        EXPECT_NO_THROW(engine->fuegeEin("Tafel", werte));
    }
    anderes->beginne();
    anderes->fuegeEin("Tafel", werte);
    try {
        engine->fuegeEin("Tafel", werte);
        ADD_FAILURE();
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_THAT(fehler.beschreibung(), HasSubstr("durch ein anderes Programm gesperrt"));
    }
    anderes->nimmZurueck();
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
        EXPECT_EQ(fault.beschreibung(), std::string(sentence) + "\nW:\\werk.mdb\n" + failure.words);
        EXPECT_EQ(fault.nummer(), failure.sqlstate == "42000" ? FEHLER_ANWEISUNG : FEHLER_ALLGEMEIN);
    }
    EXPECT_EQ(faultOf({"HY000", 11, "malformed"}, {"SQLite", ""}).kind(), FaultKind::Damaged);
}
#endif

TEST(EngineAccess, FaultsOfADriverAreTold)
{
    if (!hatOdbcTreiber(ODBC_TREIBER_SQLITE))
        GTEST_SKIP() << "no ODBC here";
    try {
        oeffneOdbc("DRIVER={Den gibt es nicht}");
        ADD_FAILURE();
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_EQ(fehler.quelle(), "ODBC");
        EXPECT_THAT(fehler.beschreibung(), HasSubstr("Driver Manager"));
    }
}

} // namespace
} // namespace quelvarn::test
