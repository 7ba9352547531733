#include "database/new_database.h"
#include "database/open_engine.h"
#include "database/postgres_cluster.h"
#include "session/register_fixture.h"

#include <fstream>
#include <gmock/gmock.h>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace quelvarn {

class FaultsAtTheStart : public RegisterTest
{
protected:
    void expectFault(const std::string& documentPath, const std::string& section)
    {
        world.boxes.expect(
            "Fehler beim Öffnen der Datenbank",
            documentPath + "\n\nFehler beim Öffnen, Lesen oder Bearbeiten der Datenbank!\n\nFehler bei: " + section +
                "\n\nMögliche Ursache:\n- Datenbank ist schreibgeschützt.\n"
                "- Vergleichen sie den Aufbau ihrer Tabellen mit der neuesten Template.\n"
                "- Falscher Eintrag beim Editieren der Ini-Tabelle.\n"
                "- Sie benutzen ein älteres Format von Access.\n"
                "- Alle Benutzer der Datenbank benötigen 'Vollzugriff'.\n"
                "   Überprüfen Sie die Sicherheitseinstellungen der Datenbank.");
        world.boxes.answer(Answer::Ok); // Fehlermeldung
    }
    void fails()
    {
        EXPECT_FALSE(Hauptprogramm(session, ports));
        EXPECT_EQ(session.database.DatenbankPfad, "");
        EXPECT_FALSE(session.database.connection.open());
        EXPECT_FALSE(session.use.CheckInOut.open());
    }
    void expectNoRegister()
    {
        world.boxes.expect("Modul: Ini-Tabelle fehlt", "Es wurde keine Datenbank vom Typ 'Quelvarnis' ausgewählt\n"
                                                       "oder es fehlt die Ini-Tabelle in der Datenbank!");
    }
    // The session's database becomes a new one with this table only.
    void onlyWith(const TableSchema& table)
    {
        openSqlite(folder / "andere.db", true)->createTable(table);
        world.files.connect(REGISTER_PATH, folder / "andere.db");
    }
    void write(const std::string& name, const std::string& content)
    {
        std::ofstream(folder / name, std::ios::binary) << content;
        world.files.connect(REGISTER_PATH, folder / name);
    }
};

TEST_F(FaultsAtTheStart, FilesThatAreNoRegisterAreRefused)
{
    expectNoRegister();
    onlyWith({"Anderes", {{"Feld1", FieldType::Text}}, {}});
    fails();

    session.database.DatenbankPfad = REGISTER_PATH;
    expectNoRegister();
    write("text.mdb", "Nur ein Text.");
    fails();
}

TEST_F(FaultsAtTheStart, AMissingFileAndAnAccessFileFailAtTheConnection)
{
    session.database.DatenbankPfad = "W:\\weg.mdb";
    expectFault("W:\\weg.mdb", "Verbindung zur Datenbank");
    fails();

    session.database.DatenbankPfad = REGISTER_PATH;
    expectFault(REGISTER_PATH, "Verbindung zur Datenbank");
    write("access.mdb", std::string("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24) + std::string(4096, '\0'));
    fails();
    EXPECT_THAT(world.boxes.last().text, ::testing::HasSubstr("Treiber für Access"));
}

TEST_F(FaultsAtTheStart, ATableThatLacksAColumnFailsInTheStepThatNeedsIt)
{
    TableSchema ini{"Ini", {}, {}};
    for (const char* field : {"Feld1", "Feld2", "Feld3", "Feld4"})
        ini.columns.push_back({field, FieldType::Text});
    onlyWith(ini);
    expectFault(REGISTER_PATH, "Berechtigung eintragen");
    fails();
}

TEST_F(FaultsAtTheStart, ANullWhereATextMustStandFailsInItsStep)
{
    addListener();
    const struct
    {
        std::string group, row, section;
    } cases[] = {
        {"Feld2 = 'ZipDaten'", "mueller|ZipDaten|Normal|~|~", "Lesen der ZIP-Daten 'Anwender'"},
        {"Feld3 = 'Offline'", "!QV_Ini|Plot|Offline|~|~", "Lesen der Einstellung zum Offline-Plotten 'Allgemein'"},
        // This step has no label of its own.
        {"Feld2 = 'Suchen/Filtern'", "mueller|Suchen/Filtern|Text0|~|~", "Lesen der Bezeichnungen"},
    };
    for (const auto& testCase : cases) {
        const auto before = iniRows(testCase.group);
        remove(testCase.group);
        insert({testCase.row});
        session.database.DatenbankPfad = REGISTER_PATH;
        expectFault(REGISTER_PATH, testCase.section);
        fails();
        remove(testCase.group);
        insert(before);
    }
}

TEST_F(FaultsAtTheStart, CancelEndsTheProgram)
{
    session.database.DatenbankPfad = "W:\\weg.mdb";
    world.boxes.answer();
    world.boxes.answer(Answer::Cancel);
    EXPECT_THROW(Hauptprogramm(session, ports), ProgramExit);
}

TEST_F(FaultsAtTheStart, AServerThatRefusesToReadIsNoWrongFile)
{
    test::PostgresCluster* cluster = test::PostgresCluster::find();
    if (!cluster)
        GTEST_SKIP() << "no PostgreSQL server is installed here";
    const std::string address = cluster->newDatabase();
    createRegister(*openPostgres(address));
    cluster->ask(address, "DO $$ BEGIN CREATE ROLE gast LOGIN; EXCEPTION WHEN duplicate_object THEN END $$;"
                          "GRANT USAGE ON SCHEMA public TO gast");
    expectFault(REGISTER_PATH, "Prüfen auf Quelvarnis-Datenbank");
    write("postgres.mdb", address + "&user=gast");
    fails();
    EXPECT_THAT(world.boxes.last().text, ::testing::HasSubstr("Für die Datenbank fehlen die nötigen Rechte."));
    cluster->release(address);
}

#ifndef _WIN32
TEST_F(FaultsAtTheStart, AReadOnlyRegisterFailsAtTheFirstWriteAndKeepsNothing)
{
    db.Close();
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0555));
    std::filesystem::permissions(file, std::filesystem::perms(0444));
    expectFault(REGISTER_PATH, "Berechtigung eintragen");
    // The administrator may write everywhere.
    const bool manager = geteuid() == 0 && seteuid(65534) == 0;
    fails();
    ASSERT_TRUE(!manager || seteuid(0) == 0);
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(file, std::filesystem::perms(0644));
    db.Open(file);
    EXPECT_THAT(iniRows("Feld1 = 'mueller'"), ::testing::IsEmpty());
}
#endif

} // namespace quelvarn
