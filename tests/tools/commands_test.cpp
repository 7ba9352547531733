#include "database/new_database.h"
#include "tools/commands_fixture.h"

#include <fstream>

namespace quelvarn::test {
namespace {

TEST(Befehle, AnswersACallThatIsWrongWithItsUsage)
{
    const std::vector<std::string> falsche[] = {
        {},
        {"loesche"},
        {"create"},
        {"create", "a", "b"},
        {"create", "a", "--neu"},
        {"sample", "a", "--documents"},
        {"sample", "a", "--documents", "viele"},
        {"sample", "a", "--documents=0"},
        {"sample", "a", "--seed", "1", "--seed", "2"},
        {"create", "a", "--ersetzen=ja"},
        {"query", "a"},
        {"rights", "a", "--sehen", "1"},
    };
    for (const auto& worte : falsche) {
        const Aufruf aufruf = rufe(worte);
        EXPECT_EQ(aufruf.ergebnis, tools::FALSCH_BEDIENT) << (worte.empty() ? "" : worte.back());
        EXPECT_NE(aufruf.meldungen.find("Aufruf: qvadmin"), std::string::npos);
    }
    for (const std::string befehl : {"create", "import", "sample", "check", "query", "rights"})
        EXPECT_TRUE(rufe({befehl, "--help"}).aus.starts_with("Aufruf: qvadmin " + befehl)) << befehl;
}

TEST_P(Befehle, CreatesARegisterThatNeedsNoRepair)
{
    ASSERT_EQ(rufe({"create", ziel_}).ergebnis, tools::GUT);
    const Aufruf pruefung = rufe({"check", ziel_, "--streng"});
    EXPECT_EQ(pruefung.ergebnis, tools::GUT) << pruefung.aus;
    EXPECT_EQ(rufe({"create", ziel_}).ergebnis, tools::FEHLGESCHLAGEN);
    EXPECT_EQ(rufe({"query", ziel_, "DELETE FROM Ini"}).ergebnis, tools::GUT);
    EXPECT_EQ(rufe({"create", ziel_, "--ersetzen"}).ergebnis, tools::GUT);
    EXPECT_EQ(zeilen(ziel_, "Select Feld5 From Ini Where Feld2 = 'Plot' And Feld3 = 'Printer'").size(), 11U);
}

TEST_P(Befehle, TakesASmallFileWithAnAddressForTheDatabaseItself)
{
    if (!istPostgres())
        return;
    const std::string datei = pfad(ordner_ / "register.mdb");
    std::ofstream(datei) << ziel_ << "\n";
    ASSERT_EQ(rufe({"create", datei}).ergebnis, tools::GUT);
    EXPECT_EQ(rufe({"query", datei, "Select Count(*) From Ini"}).aus,
              rufe({"query", ziel_, "Select Count(*) From Ini"}).aus);
}

TEST(Verlauf, IsShownToAPersonOnly)
{
    for (const bool terminal : {false, true}) {
        TempFolder ordner;
        std::ostringstream aus;
        std::ostringstream meldungen;
        tools::Konsole konsole{aus, meldungen, terminal};
        const std::vector<std::string> worte{"create", pfad(ordner / "register.qv")};
        ASSERT_EQ(tools::fuehreAus(worte, konsole), tools::GUT);
        EXPECT_EQ(meldungen.str().empty(), !terminal) << meldungen.str();
    }
}

TEST_P(Befehle, PrintsRowsForPeopleAndForPrograms)
{
    ASSERT_EQ(rufe({"create", ziel_}).ergebnis, tools::GUT);
    EXPECT_EQ(
        rufe({"query", ziel_,
              "INSERT INTO PartTabelle (DokuBez, RevBez, Status, Erstellt, Hauptwert_a, Hauptwert_b, Titel) VALUES "
              "('A\tB\\', '', 3, #12/31/99 23:59:58#, 1.5, 20, 'Über \"alles\"\n')"})
            .aus,
        "1\n");
    const std::string abfrage = "Select DokuBez, RevBez, Projekt, Status, Erstellt, Hauptwert_a, Hauptwert_b, Titel "
                                "From PartTabelle";
    EXPECT_EQ(rufe({"query", ziel_, abfrage}).aus,
              "DokuBez\tRevBez\tProjekt\tStatus\tErstellt\tHauptwert_a\tHauptwert_b\tTitel\n"
              "A\\tB\\\t\t\t3\t1999-12-31 23:59:58\t1.5\t20.0\tÜber \"alles\"\\n\n");
    EXPECT_EQ(rufe({"query", ziel_, abfrage, "--json"}).aus,
              "[\"DokuBez\",\"RevBez\",\"Projekt\",\"Status\",\"Erstellt\",\"Hauptwert_a\",\"Hauptwert_b\",\"Titel\"]\n"
              "[\"A\\u0009B\\\\\",\"\",null,3,\"1999-12-31 23:59:58\",1.5,20.0,\"Über \\\"alles\\\"\\n\"]\n");
    EXPECT_EQ(rufe({"query", ziel_, "UPDATE PartTabelle SET Status = 4 WHERE Status = 3"}).aus, "1\n");
    EXPECT_EQ(rufe({"query", ziel_, "DELETE FROM PartTabelle WHERE Status = 3"}).aus, "0\n");
    EXPECT_EQ(rufe({"query", ziel_, "Select * From PartTabelle; Drop Table Ini"}).ergebnis, tools::FEHLGESCHLAGEN);
    EXPECT_EQ(rufe({"query", ziel_, "Select Unbekannt From PartTabelle"}).ergebnis, tools::FEHLGESCHLAGEN);
}

TEST_P(Befehle, SetsAndShowsTheRightsOfAUser)
{
    ASSERT_EQ(rufe({"create", ziel_}).ergebnis, tools::GUT);
    EXPECT_EQ(rufe({"rights", ziel_, "O'Neill", "--sehen", "1"}).ergebnis, tools::FEHLGESCHLAGEN); // Not there yet.
    EXPECT_EQ(rufe({"rights", ziel_, "O'Neill", "--neu"}).ergebnis, tools::GUT);
    EXPECT_EQ(rufe({"rights", ziel_, "o'neill", "--sehen", "0, 5", "--loeschen", "5=6,0=2"}).ergebnis, tools::GUT);
    std::vector<nlohmann::json> rechte =
        zeilen(ziel_, "Select Feld1, Feld3, Feld4, Feld5 From Ini Where Feld2 = 'Berechtigung' Order By Feld3");
    const nlohmann::json erwartet = {{"Feld1", "Feld3", "Feld4", "Feld5"}, {"O'Neill", "0_Status", "1", "2"},
                                     {"O'Neill", "1_Status", "0", "0"},    {"O'Neill", "2_Status", "0", "0"},
                                     {"O'Neill", "3_Status", "0", "0"},    {"O'Neill", "4_Status", "0", "0"},
                                     {"O'Neill", "5_Status", "1", "6"}};
    EXPECT_EQ(nlohmann::json(rechte), erwartet);
    EXPECT_EQ(rufe({"rights", ziel_}).aus, rufe({"rights", ziel_, "O'NEILL"}).aus);
    for (const std::string wert : {"", "6", "1;2", "x"})
        EXPECT_EQ(rufe({"rights", ziel_, "O'Neill", "--sehen", wert}).ergebnis, tools::FALSCH_BEDIENT) << wert;
    for (const std::string wert : {"0", "0=7", "6=1", "0=-1"})
        EXPECT_EQ(rufe({"rights", ziel_, "O'Neill", "--loeschen", wert}).ergebnis, tools::FALSCH_BEDIENT) << wert;
}

TEST_P(Befehle, FindsWhatIsWrongWithARegister)
{
    const struct
    {
        std::string anweisung;
        std::string befund;
        int ergebnis;
    } faelle[] = {
        {"UPDATE PartTabelle SET Status = 7 WHERE DokuBez = 'GT-0301-111'",
         "Fehler: PartTabelle: Dokumente mit einem Status außerhalb von 0 bis 5: 1, etwa GT-0301-111 (0)", 1},
        {"UPDATE DraftTabelle SET DokuBez = Null WHERE DokuBez = 'VL-001'",
         "Fehler: DraftTabelle: Dokumente ohne DokuBez oder RevBez: 1, etwa Null (0)", 1},
        {"INSERT INTO STbl1Tabelle (DokuBez, RevBez, filename, Status) VALUES ('din 933 - M4X10 ', '0', 'W:\\x.par', "
         "3)",
         "Fehler: STbl1Tabelle: Dokumente, die es schon gibt: 1", 1},
        {"UPDATE ZusBauPart SET Part = 'W:\\weg.par' WHERE AssembDokuBez = 'VR-0001-000'",
         "Warnung: ZusBauPart: Zeilen, deren Part in keiner Dokumenttabelle steht: 1, etwa W:\\weg.par", 0},
        {"DELETE FROM Ini WHERE Feld3 = 'Forward'", "Fehler: Ini: die Zeile OnOff/Forward fehlt.", 1},
        {"UPDATE Ini SET Feld4 = '0' WHERE Feld1 = 'Schröder' AND Feld2 = 'Berechtigung'",
         "Fehler: Ini: Schröder darf keinen Status sehen", 1},
        {"UPDATE Ini SET Feld4 = '2' WHERE Feld1 = 'Weber' AND Feld3 = 'Knoten'",
         "Warnung: Ini: Weber, Treeview/Knoten: der Wert wird beim Start ersetzt.", 0},
    };
    for (const auto& fall : faelle) {
        ASSERT_EQ(rufe({"sample", ziel_, "--documents", "500", "--ersetzen"}).ergebnis, tools::GUT);
        ASSERT_EQ(rufe({"query", ziel_, fall.anweisung}).ergebnis, tools::GUT) << fall.anweisung;
        const Aufruf pruefung = rufe({"check", ziel_});
        EXPECT_EQ(pruefung.ergebnis, fall.ergebnis) << fall.anweisung;
        EXPECT_NE(pruefung.aus.find(fall.befund), std::string::npos) << pruefung.aus;
        EXPECT_EQ(rufe({"check", ziel_, "--streng"}).ergebnis, tools::FEHLGESCHLAGEN) << fall.anweisung;
    }
}

TEST_P(Befehle, BuildsMissingIndexesWhenTold)
{
    ASSERT_EQ(rufe({"create", ziel_}).ergebnis, tools::GUT);
    const auto engine = istPostgres() ? oeffnePostgres(ziel_) : oeffneSqlite(ziel_, false);
    Tabellenschema tafel = *findTabelle("TIFFTabelle");
    engine->entferneTabelle("tifftabelle");
    engine->legeTabelleAn(tafel);
    EXPECT_NE(rufe({"check", ziel_}).aus.find("Fehler: Es fehlt der Index der Tabelle TIFFTabelle über Dateiname"),
              std::string::npos);
    EXPECT_EQ(rufe({"check", ziel_, "--reparieren"}).ergebnis, tools::GUT);
    EXPECT_EQ(rufe({"check", ziel_}).ergebnis, tools::GUT);
    engine->entferneTabelle("TIFFTabelle");
    EXPECT_NE(rufe({"check", ziel_}).aus.find("Fehler: Die Tabelle TIFFTabelle fehlt."), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Engines, Befehle, eigeneEngines, engineName);

} // namespace
} // namespace quelvarn::test
