#include "database/faults.h"
#include "frame/main_window.h"
#include "frame/start_page.h"
#include "session/database_watch.h"
#include "session/program.h"
#include "session/register_fixture.h"

#include <fstream>
#include <gmock/gmock.h>

namespace quelvarn {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

// The register's file is deleted or replaced under an open program.
class DatabaseWatching : public RegisterTest
{
protected:
    DatabaseWatching()
    {
        meldeAn();
        EXPECT_TRUE(frame.laden());
        frame.watchDatabase = [this] { watch.tick(); };
    }
    void expectGone()
    {
        world.meldungen.erwarte("Datenbank", zeilen({"Die Datenbank ist nicht mehr vorhanden.", REGISTERPFAD, "",
                                                     "Angezeigt wird, was schon gelesen ist.",
                                                     "Sobald die Datei wieder da ist, geht es ohne Neustart weiter."}));
    }
    void expectReplaced()
    {
        world.meldungen.erwarte("Datenbank", zeilen({"Die Datenbank wurde durch eine andere Datei ersetzt.",
                                                     REGISTERPFAD, "", "Sie wird neu geöffnet."}));
    }
    // Another register in the place of the open one, as a fresh takeover leaves it.
    void replace(sql::FixedText change)
    {
        const auto other = ordner / "neu.db";
        fs::copy_file(datei, other);
        Connection connection;
        connection.Open(other);
        connection.Execute(change);
        connection.Close();
        fs::rename(other, datei);
    }
    FaultKind faultBeforeRebuild()
    {
        try {
            watch.stillOpen();
        } catch (const DatabaseFault& fault) {
            return fault.kind();
        }
        return FaultKind::Other;
    }

    MainWindow frame{session, operations, {}};
    StartPage start{session, operations, frame};
    DatabaseWatch watch{session, ports, [this] { start.openAgain(); }};
};

TEST_F(DatabaseWatching, AFileThatIsGoneIsToldOnceUntilItIsBack)
{
    frame.tickDBUpdate();
    for (int time = 0; time < 2; ++time) {
        fs::rename(datei, ordner / "weg");
        expectGone();
        frame.tickDBUpdate();
        frame.tickDBUpdate();
        EXPECT_EQ(faultBeforeRebuild(), FaultKind::FileGone);
        EXPECT_TRUE(session.database.Verbindung.offen());
        fs::rename(ordner / "weg", datei);
        frame.tickDBUpdate();
        EXPECT_TRUE(watch.stillOpen());
    }
}

TEST_F(DatabaseWatching, AnotherRegisterIsOpenedByItself)
{
    replace("Update Ini Set Feld4 = '12000' Where Feld3 = 'Zeitinterval'");
    expectReplaced();
    frame.tickDBUpdate();
    EXPECT_EQ(session.use.Zeitintervall, 12000);
    EXPECT_EQ(frame.TimerDBUpdate().intervall, 12000);
    EXPECT_TRUE(session.database.DatenbankOk);
    frame.tickDBUpdate();

    replace("Update Ini Set Feld4 = '13000' Where Feld3 = 'Zeitinterval'");
    expectReplaced();
    EXPECT_FALSE(watch.stillOpen()) << "what was to be rebuilt is new by now";
    EXPECT_EQ(session.use.Zeitintervall, 13000);
    EXPECT_TRUE(watch.stillOpen());
}

TEST_F(DatabaseWatching, AFileThatIsNoRegisterIsToldOnceAndTriedAgain)
{
    fs::rename(datei, ordner / "gut");
    std::ofstream(datei) << "halb kopiert";
    world.meldungen.antworte();
    frame.tickDBUpdate();
    EXPECT_THAT(world.meldungen.letzte().text, HasSubstr("Sie lässt sich nicht öffnen:"));
    frame.tickDBUpdate();
    EXPECT_THROW(watch.stillOpen(), Laufzeitfehler);
    EXPECT_TRUE(session.database.Verbindung.offen());
    fs::copy_file(ordner / "gut", datei, fs::copy_options::overwrite_existing);
    expectReplaced();
    frame.tickDBUpdate();
    EXPECT_TRUE(session.database.DatenbankOk);
}

TEST_F(DatabaseWatching, SettingsGoIntoTheRegisterThatTheNextStartOpens)
{
    frame.zuSeite(Seite::Start);
    start.setzeInfoPrio1(0, false);
    replace("Update Ini Set Feld4 = '12000' Where Feld3 = 'Zeitinterval'");
    frame.entladen();
    db.Open(datei);
    EXPECT_THAT(iniZeilen("Feld2 = 'Treeview' And Feld3 = 'Knoten'"),
                ElementsAre(HasSubstr("mueller|Treeview|Knoten|0|")));
}

} // namespace quelvarn
