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
    void erwarteFehler(const std::string& pfad, const std::string& abschnitt)
    {
        world.meldungen.erwarte(
            "Fehler beim Öffnen der Datenbank",
            pfad + "\n\nFehler beim Öffnen, Lesen oder Bearbeiten der Datenbank!\n\nFehler bei: " + abschnitt +
                "\n\nMögliche Ursache:\n- Datenbank ist schreibgeschützt.\n"
                "- Vergleichen sie den Aufbau ihrer Tabellen mit der neuesten Template.\n"
                "- Falscher Eintrag beim Editieren der Ini-Tabelle.\n"
                "- Sie benutzen ein älteres Format von Access.\n"
                "- Alle Benutzer der Datenbank benötigen 'Vollzugriff'.\n"
                "   Überprüfen Sie die Sicherheitseinstellungen der Datenbank.");
        world.meldungen.antworte(Antwort::Ok); // Fehlermeldung
    }
    void scheitert()
    {
        EXPECT_FALSE(Hauptprogramm(session, ports));
        EXPECT_EQ(session.database.DatenbankPfad, "");
        EXPECT_FALSE(session.database.Verbindung.offen());
        EXPECT_FALSE(session.use.CheckInOut.offen());
    }
    void erwarteKeinRegister()
    {
        world.meldungen.erwarte("Modul: Ini-Tabelle fehlt", "Es wurde keine Datenbank vom Typ 'Quelvarnis' ausgewählt\n"
                                                            "oder es fehlt die Ini-Tabelle in der Datenbank!");
    }
    // The session's database becomes a new one with this table only.
    void nurMit(const Tabellenschema& tabelle)
    {
        oeffneSqlite(ordner / "andere.db", true)->legeTabelleAn(tabelle);
        world.dateien.verbinde(REGISTERPFAD, ordner / "andere.db");
    }
    void schreibe(const std::string& name, const std::string& inhalt)
    {
        std::ofstream(ordner / name, std::ios::binary) << inhalt;
        world.dateien.verbinde(REGISTERPFAD, ordner / name);
    }
};

TEST_F(FaultsAtTheStart, FilesThatAreNoRegisterAreRefused)
{
    erwarteKeinRegister();
    nurMit({"Anderes", {{"Feld1", FeldTyp::Text}}, {}});
    scheitert();

    session.database.DatenbankPfad = REGISTERPFAD;
    erwarteKeinRegister();
    schreibe("text.mdb", "Nur ein Text.");
    scheitert();
}

TEST_F(FaultsAtTheStart, AMissingFileAndAnAccessFileFailAtTheConnection)
{
    session.database.DatenbankPfad = "W:\\weg.mdb";
    erwarteFehler("W:\\weg.mdb", "Verbindung zur Datenbank");
    scheitert();

    session.database.DatenbankPfad = REGISTERPFAD;
    erwarteFehler(REGISTERPFAD, "Verbindung zur Datenbank");
    schreibe("access.mdb", std::string("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24) + std::string(4096, '\0'));
    scheitert();
    EXPECT_THAT(world.meldungen.letzte().text, ::testing::HasSubstr("Treiber für Access"));
}

TEST_F(FaultsAtTheStart, ATableThatLacksAColumnFailsInTheStepThatNeedsIt)
{
    Tabellenschema ini{"Ini", {}, {}};
    for (const char* feld : {"Feld1", "Feld2", "Feld3", "Feld4"})
        ini.spalten.push_back({feld, FeldTyp::Text});
    nurMit(ini);
    erwarteFehler(REGISTERPFAD, "Berechtigung eintragen");
    scheitert();
}

TEST_F(FaultsAtTheStart, ANullWhereATextMustStandFailsInItsStep)
{
    meldeAn();
    const struct
    {
        std::string gruppe, zeile, abschnitt;
    } faelle[] = {
        {"Feld2 = 'ZipDaten'", "mueller|ZipDaten|Normal|~|~", "Lesen der ZIP-Daten 'Anwender'"},
        {"Feld3 = 'Offline'", "!QV_Ini|Plot|Offline|~|~", "Lesen der Einstellung zum Offline-Plotten 'Allgemein'"},
        // This step has no label of its own.
        {"Feld2 = 'Suchen/Filtern'", "mueller|Suchen/Filtern|Text0|~|~", "Lesen der Bezeichnungen"},
    };
    for (const auto& fall : faelle) {
        const auto vorher = iniZeilen(fall.gruppe);
        loesche(fall.gruppe);
        fuegeEin({fall.zeile});
        session.database.DatenbankPfad = REGISTERPFAD;
        erwarteFehler(REGISTERPFAD, fall.abschnitt);
        scheitert();
        loesche(fall.gruppe);
        fuegeEin(vorher);
    }
}

TEST_F(FaultsAtTheStart, CancelEndsTheProgram)
{
    session.database.DatenbankPfad = "W:\\weg.mdb";
    world.meldungen.antworte();
    world.meldungen.antworte(Antwort::Abbrechen);
    EXPECT_THROW(Hauptprogramm(session, ports), ProgrammEnde);
}

TEST_F(FaultsAtTheStart, AServerThatRefusesToReadIsNoWrongFile)
{
    test::PostgresCluster* cluster = test::PostgresCluster::find();
    if (!cluster)
        GTEST_SKIP() << "no PostgreSQL server is installed here";
    const std::string address = cluster->neueDatenbank();
    legeRegisterAn(*oeffnePostgres(address));
    cluster->frage(address, "DO $$ BEGIN CREATE ROLE gast LOGIN; EXCEPTION WHEN duplicate_object THEN END $$;"
                            "GRANT USAGE ON SCHEMA public TO gast");
    erwarteFehler(REGISTERPFAD, "Prüfen auf Quelvarnis-Datenbank");
    schreibe("postgres.mdb", address + "&user=gast");
    scheitert();
    EXPECT_THAT(world.meldungen.letzte().text, ::testing::HasSubstr("Für die Datenbank fehlen die nötigen Rechte."));
    cluster->gibFrei(address);
}

#ifndef _WIN32
TEST_F(FaultsAtTheStart, AReadOnlyRegisterFailsAtTheFirstWriteAndKeepsNothing)
{
    db.Close();
    std::filesystem::permissions(ordner.path(), std::filesystem::perms(0555));
    std::filesystem::permissions(datei, std::filesystem::perms(0444));
    erwarteFehler(REGISTERPFAD, "Berechtigung eintragen");
    // The administrator may write everywhere.
    const bool verwalter = geteuid() == 0 && seteuid(65534) == 0;
    scheitert();
    ASSERT_TRUE(!verwalter || seteuid(0) == 0);
    std::filesystem::permissions(ordner.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(datei, std::filesystem::perms(0644));
    db.Open(datei);
    EXPECT_THAT(iniZeilen("Feld1 = 'mueller'"), ::testing::IsEmpty());
}
#endif

} // namespace quelvarn
