#include "database/open_engine.h"
#include "tools/commands_fixture.h"

#include <fstream>

namespace quelvarn::test {
namespace {

TEST(Commands, AnswersACallThatIsWrongWithItsUsage)
{
    const std::vector<std::string> wrong[] = {
        {},
        {"loesche"},
        {"create"},
        {"create", "a", "b"},
        {"create", "a", "--new"},
        {"sample", "a", "--documents"},
        {"sample", "a", "--documents", "viele"},
        {"sample", "a", "--documents=0"},
        {"sample", "a", "--seed", "1", "--seed", "2"},
        {"create", "a", "--replace=ja"},
        {"query", "a"},
        {"rights", "a", "--see", "1"},
    };
    for (const auto& words : wrong) {
        const Call call = runCommand(words);
        EXPECT_EQ(call.result, tools::WRONG_OPERATED) << (words.empty() ? "" : words.back());
        EXPECT_NE(call.log.find("Aufruf: qvadmin"), std::string::npos);
    }
    for (const std::string command : {"create", "import", "sample", "check", "query", "rights"})
        EXPECT_TRUE(runCommand({command, "--help"}).out.starts_with("Aufruf: qvadmin " + command)) << command;
}

TEST_P(Commands, CreatesARegisterThatNeedsNoRepair)
{
    ASSERT_EQ(runCommand({"create", target_}).result, tools::GOOD);
    const Call check = runCommand({"check", target_, "--strict"});
    EXPECT_EQ(check.result, tools::GOOD) << check.out;
    EXPECT_EQ(runCommand({"create", target_}).result, tools::FAILED);
    EXPECT_EQ(runCommand({"query", target_, "DELETE FROM Ini"}).result, tools::GOOD);
    EXPECT_EQ(runCommand({"create", target_, "--replace"}).result, tools::GOOD);
    EXPECT_EQ(rows(target_, "Select Feld5 From Ini Where Feld2 = 'Plot' And Feld3 = 'Printer'").size(), 11U);
}

TEST_P(Commands, TakesASmallFileWithAnAddressForTheDatabaseItself)
{
    if (!isPostgres())
        return;
    const std::string file = path(folder_ / "register.mdb");
    std::ofstream(file) << target_ << "\n";
    ASSERT_EQ(runCommand({"create", file}).result, tools::GOOD);
    EXPECT_EQ(runCommand({"query", file, "Select Count(*) From Ini"}).out,
              runCommand({"query", target_, "Select Count(*) From Ini"}).out);
}

TEST(Course, IsShownToAPersonOnly)
{
    for (const bool terminal : {false, true}) {
        TempFolder folder;
        std::ostringstream out;
        std::ostringstream log;
        tools::Console console{out, log, terminal};
        const std::vector<std::string> words{"create", path(folder / "register.qv")};
        ASSERT_EQ(tools::execute(words, console), tools::GOOD);
        EXPECT_EQ(log.str().empty(), !terminal) << log.str();
    }
}

TEST_P(Commands, PrintsRowsForPeopleAndForPrograms)
{
    ASSERT_EQ(runCommand({"create", target_}).result, tools::GOOD);
    EXPECT_EQ(
        runCommand(
            {"query", target_,
             "INSERT INTO PartTabelle (DokuBez, RevBez, Status, Erstellt, Hauptwert_a, Hauptwert_b, Titel) VALUES "
             "('A\tB\\', '', 3, #12/31/99 23:59:58#, 1.5, 20, 'Über \"alles\"\n')"})
            .out,
        "1\n");
    const std::string query = "Select DokuBez, RevBez, Projekt, Status, Erstellt, Hauptwert_a, Hauptwert_b, Titel "
                              "From PartTabelle";
    EXPECT_EQ(runCommand({"query", target_, query}).out,
              "DokuBez\tRevBez\tProjekt\tStatus\tErstellt\tHauptwert_a\tHauptwert_b\tTitel\n"
              "A\\tB\\\t\t\t3\t1999-12-31 23:59:58\t1.5\t20.0\tÜber \"alles\"\\n\n");
    EXPECT_EQ(runCommand({"query", target_, query, "--json"}).out,
              "[\"DokuBez\",\"RevBez\",\"Projekt\",\"Status\",\"Erstellt\",\"Hauptwert_a\",\"Hauptwert_b\",\"Titel\"]\n"
              "[\"A\\u0009B\\\\\",\"\",null,3,\"1999-12-31 23:59:58\",1.5,20.0,\"Über \\\"alles\\\"\\n\"]\n");
    EXPECT_EQ(runCommand({"query", target_, "UPDATE PartTabelle SET Status = 4 WHERE Status = 3"}).out, "1\n");
    EXPECT_EQ(runCommand({"query", target_, "DELETE FROM PartTabelle WHERE Status = 3"}).out, "0\n");
    EXPECT_EQ(runCommand({"query", target_, "Select * From PartTabelle; Drop Table Ini"}).result, tools::FAILED);
    EXPECT_EQ(runCommand({"query", target_, "Select Unbekannt From PartTabelle"}).result, tools::FAILED);
}

TEST_P(Commands, SetsAndShowsTheRightsOfAUser)
{
    ASSERT_EQ(runCommand({"create", target_}).result, tools::GOOD);
    EXPECT_EQ(runCommand({"rights", target_, "O'Neill", "--see", "1"}).result, tools::FAILED); // Not there yet.
    EXPECT_EQ(runCommand({"rights", target_, "O'Neill", "--new"}).result, tools::GOOD);
    EXPECT_EQ(runCommand({"rights", target_, "o'neill", "--see", "0, 5", "--delete", "5=6,0=2"}).result, tools::GOOD);
    std::vector<nlohmann::json> rights =
        rows(target_, "Select Feld1, Feld3, Feld4, Feld5 From Ini Where Feld2 = 'Berechtigung' Order By Feld3");
    const nlohmann::json expected = {{"Feld1", "Feld3", "Feld4", "Feld5"}, {"O'Neill", "0_Status", "1", "2"},
                                     {"O'Neill", "1_Status", "0", "0"},    {"O'Neill", "2_Status", "0", "0"},
                                     {"O'Neill", "3_Status", "0", "0"},    {"O'Neill", "4_Status", "0", "0"},
                                     {"O'Neill", "5_Status", "1", "6"}};
    EXPECT_EQ(nlohmann::json(rights), expected);
    EXPECT_EQ(runCommand({"rights", target_}).out, runCommand({"rights", target_, "O'NEILL"}).out);
    for (const std::string value : {"", "6", "1;2", "x"})
        EXPECT_EQ(runCommand({"rights", target_, "O'Neill", "--see", value}).result, tools::WRONG_OPERATED) << value;
    for (const std::string value : {"0", "0=7", "6=1", "0=-1"})
        EXPECT_EQ(runCommand({"rights", target_, "O'Neill", "--delete", value}).result, tools::WRONG_OPERATED) << value;
}

TEST_P(Commands, FindsWhatIsWrongWithARegister)
{
    const struct
    {
        std::string statement;
        std::string findings;
        int result;
    } cases[] = {
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
    for (const auto& testCase : cases) {
        ASSERT_EQ(runCommand({"sample", target_, "--documents", "500", "--replace"}).result, tools::GOOD);
        ASSERT_EQ(runCommand({"query", target_, testCase.statement}).result, tools::GOOD) << testCase.statement;
        const Call check = runCommand({"check", target_});
        EXPECT_EQ(check.result, testCase.result) << testCase.statement;
        EXPECT_NE(check.out.find(testCase.findings), std::string::npos) << check.out;
        EXPECT_EQ(runCommand({"check", target_, "--strict"}).result, tools::FAILED) << testCase.statement;
    }
}

TEST_P(Commands, BuildsMissingIndexesWhenTold)
{
    ASSERT_EQ(runCommand({"create", target_}).result, tools::GOOD);
    const auto engine = isPostgres() ? openPostgres(target_) : openSqlite(target_, false);
    TableSchema panel = *findTable("TIFFTabelle");
    engine->removeTable("tifftabelle");
    engine->createTable(panel);
    EXPECT_NE(
        runCommand({"check", target_}).out.find("Fehler: Es fehlt der Index der Tabelle TIFFTabelle über Dateiname"),
        std::string::npos);
    EXPECT_EQ(runCommand({"check", target_, "--repair"}).result, tools::GOOD);
    EXPECT_EQ(runCommand({"check", target_}).result, tools::GOOD);
    engine->removeTable("TIFFTabelle");
    EXPECT_NE(runCommand({"check", target_}).out.find("Fehler: Die Tabelle TIFFTabelle fehlt."), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Engines, Commands, ownEngines, engineName);

} // namespace
} // namespace quelvarn::test
