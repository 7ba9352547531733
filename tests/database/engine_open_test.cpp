#include "base/file_path.h"
#include "base/runtime_error.h"
#include "database/connection.h"
#include "database/engine_fixture.h"
#include "database/new_database.h"
#include "fakes/temp_folder.h"

#include <atomic>
#include <fstream>
#include <gmock/gmock.h>
#include <sqlite3.h>
#include <thread>

namespace quelvarn::test {
namespace {

using ::testing::HasSubstr;

std::string fehlertext(const std::function<void()>& aufruf)
{
    try {
        aufruf();
    } catch (const Laufzeitfehler& fehler) {
        return fehler.beschreibung();
    }
    return "no fault";
}

TEST(DatabaseFile, IsToldByItsFirstBytes)
{
    using namespace std::string_literals;
    const TempFolder ordner;
    struct Fall
    {
        std::string inhalt;
        DatenbankArt art;
        ::testing::Matcher<std::string> fehler; // On opening.
    };
    const bool hatAccess = hatOdbcTreiber(ODBC_TREIBER_ACCESS);
    const ::testing::Matcher<std::string> access = HasSubstr(hatAccess ? "Der ODBC-Treiber" : "Treiber für Access");
    const Fall faelle[] = {
        {"\0\1\0\0Standard Jet DB\0\1"s, DatenbankArt::Access, access},
        {"\0\1\0\0Standard ACE DB\0\2"s, DatenbankArt::Access, access},
        {"\xEF\xBB\xBFPostgreSQL://127.0.0.1:1/qv \r\nzweite Zeile", DatenbankArt::PostgreSQL, HasSubstr("PostgreSQL")},
        {"postgres://127.0.0.1:1/qv", DatenbankArt::PostgreSQL, HasSubstr("PostgreSQL")},
        {"", DatenbankArt::Unbekannt, HasSubstr("ist keine Datenbank dieses Programms.")},
        {"\0\1\0\0Standard", DatenbankArt::Unbekannt, HasSubstr("ist keine Datenbank dieses Programms.")},
        {"Notiz: postgresql://x", DatenbankArt::Unbekannt, HasSubstr("ist keine Datenbank dieses Programms.")},
        {"SQLite format 3\0"s + std::string(5000, '\x7'), DatenbankArt::SQLite,
         HasSubstr("Die Datenbank ist beschädigt.")},
    };
    for (const Fall& fall : faelle) {
        const auto pfad = ordner / "Prüfung.mdb";
        std::ofstream(pfad, std::ios::binary) << fall.inhalt;
        EXPECT_EQ(erkenneDatenbank(pfad), fall.art) << fall.inhalt;
        EXPECT_THAT(fehlertext([&] { Connection().Open(pfad); }), fall.fehler) << fall.inhalt;
    }
    EXPECT_THAT(fehlertext([&] { erkenneDatenbank(ordner / "fehlt.mdb"); }), HasSubstr("wurde nicht gefunden"));
    EXPECT_THAT(fehlertext([&] { erkenneDatenbank(ordner.path()); }), HasSubstr("kann nicht gelesen werden"));
}

TEST(DatabaseFile, ConnectionExecutesChangesButNoQueries)
{
    const TempFolder ordner;
    const auto pfad = ordner / "register.qv";
    legeRegisterAn(*oeffneSqlite(pfad, true));

    Connection verbindung;
    EXPECT_THAT(fehlertext([&] { verbindung.Execute("Delete From Ini"); }), HasSubstr("nicht geöffnet"));
    verbindung.OpenAdresse(utf8FromPath(pfad));
    EXPECT_EQ(verbindung.Execute("Insert Into Ini (Feld1, Feld2) Values ('mm', 'Plot')"), 1);
    {
        Transaktion verworfen(verbindung);
        EXPECT_EQ(verbindung.Execute("Delete From Ini"), 1);
    }
    {
        Transaktion gueltig(verbindung);
        EXPECT_EQ(verbindung.Execute("Update Ini Set Feld3 = 'x' Where Feld1 = 'MM'"), 1);
        gueltig.schliesseAb();
    }
    EXPECT_EQ(verbindung.Execute("Delete From Ini Where Feld3 = 'x'"), 1);
    EXPECT_NE(fehlertext([&] { verbindung.Execute("Select * From Ini"); }), "no fault");
    EXPECT_NE(fehlertext([&] { verbindung.Execute("Delete From Ini; Delete From Ini"); }), "no fault");
}

TEST(DatabaseFile, TakesCellsAndColumnsOfAnotherMakersFile)
{
    const TempFolder ordner;
    const auto pfad = ordner / "fremd.qv";
    sqlite3* fremd = nullptr;
    sqlite3_open(utf8FromPath(pfad).c_str(), &fremd);
    const int ergebnis = sqlite3_exec(
        fremd,
        "CREATE TABLE partTABELLE (DokuBez VARCHAR(50) COLLATE NOCASE, Status SMALLINT, Erstellt TIMESTAMP, "
        "Gewicht NUMERIC); "
        "INSERT INTO PartTabelle VALUES ('a', 'offen', 'gestern', 3), ('b', 2, '2006-03-07', 2.5);",
        nullptr, nullptr, nullptr);
    sqlite3_close(fremd);
    ASSERT_EQ(ergebnis, SQLITE_OK);
    const auto engine = oeffneSqlite(pfad, false);
    EXPECT_EQ(engine->findTabelle("PartTabelle")->spalten, (std::vector<Spalte>{{"DokuBez", FeldTyp::Text},
                                                                                {"Status", FeldTyp::Ganzzahl},
                                                                                {"Erstellt", FeldTyp::Datum},
                                                                                {"Gewicht", FeldTyp::Gleitkomma}}));
    const auto leser =
        engine->lese(std::get<sql::Select>(sql::parseAnweisung("Select * From PartTabelle")), MitSchluessel::Ja);
    ASSERT_TRUE(leser->next());
    EXPECT_EQ(leser->wert(1), Value("offen"));
    EXPECT_EQ(leser->wert(2), Value("gestern"));
    EXPECT_EQ(leser->wert(3), Value(3.0));
    ASSERT_TRUE(leser->next());
    EXPECT_EQ(leser->wert(2), Value(Zeitpunkt::aus({2006, 3, 7})));
}

class EngineWriters : public EngineTest
{};
// SQLite's ODBC driver asks for the write lock too late: two writers may block each other.
INSTANTIATE_TEST_SUITE_P(, EngineWriters, ::testing::Values("SQLite", "PostgreSQL", "OdbcPostgreSQL"), engineName);

// Several seats of the office write and read at once; none may see a fault or lose a row.
TEST_P(EngineWriters, ManyAtOnceLoseNothing)
{
    fuelle({{"Name", FeldTyp::Text}, {"Nummer", FeldTyp::Ganzzahl}}, {}, {{{"Name", false}}});
    std::atomic<int> geschrieben = 0;
    std::atomic<int> fehler = 0;
    const auto platz = [&](int nummer) {
        try {
            const auto engine = oeffne();
            const std::string name = "Platz " + std::to_string(nummer);
            const auto ende = std::chrono::steady_clock::now() + std::chrono::milliseconds(1500);
            for (std::int64_t nummerDort = 0; std::chrono::steady_clock::now() < ende; ++nummerDort) {
                const sql::Zuweisung werte[] = {{"Name", name}, {"Nummer", nummerDort}};
                engine->beginne();
                const auto zeile = engine->fuegeEin("Tafel", werte);
                engine->aendere("Tafel", zeile, werte);
                engine->schliesseAb();
                ++geschrieben;
                const auto zeilen = EngineTest::zeilen(*engine->lese(select("Select Name From Tafel"), {}));
                if (zeilen.empty())
                    ++fehler;
            }
        } catch (const Laufzeitfehler& gefangen) {
            ADD_FAILURE() << gefangen.beschreibung();
        }
    };
    std::vector<std::jthread> plaetze;
    for (int nummer = 0; nummer < 4; ++nummer)
        plaetze.emplace_back(platz, nummer);
    plaetze.clear();
    EXPECT_EQ(fehler, 0);
    EXPECT_GT(geschrieben, 20);
    EXPECT_EQ(lies("Select Count(*) From Tafel").front(), std::to_string(geschrieben));
}

} // namespace
} // namespace quelvarn::test
