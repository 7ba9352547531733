#include "database/faults.h"
#include "frame/main_window.h"
#include "frame/start_page.h"
#include "session/database_watch.h"
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
        addListener();
        EXPECT_TRUE(frame.laden());
        frame.watchDatabase = [this] { watch.tick(); };
    }
    void expectGone()
    {
        world.boxes.expect("Datenbank", lines({"Die Datenbank ist nicht mehr vorhanden.", REGISTER_PATH, "",
                                               "Angezeigt wird, was schon gelesen ist.",
                                               "Sobald die Datei wieder da ist, geht es ohne Neustart weiter."}));
    }
    void expectReplaced()
    {
        world.boxes.expect("Datenbank", lines({"Die Datenbank wurde durch eine andere Datei ersetzt.", REGISTER_PATH,
                                               "", "Sie wird neu geöffnet."}));
    }
    // Another register in the place of the open one, as a fresh takeover leaves it.
    void replace(sql::FixedText change)
    {
        const auto other = folder / "neu.db";
        fs::copy_file(file, other);
        Connection connection;
        connection.Open(other);
        connection.execute(change);
        connection.Close();
        fs::rename(other, file);
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
    DatabaseWatch watch{session.database, ports, [this] { start.openAgain(); }};
};

TEST_F(DatabaseWatching, AFileThatIsGoneIsToldOnceUntilItIsBack)
{
    frame.tickDBUpdate();
    for (int time = 0; time < 2; ++time) {
        fs::rename(file, folder / "weg");
        expectGone();
        frame.tickDBUpdate();
        frame.tickDBUpdate();
        EXPECT_EQ(faultBeforeRebuild(), FaultKind::FileGone);
        EXPECT_TRUE(session.database.connection.open());
        fs::rename(folder / "weg", file);
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
    EXPECT_EQ(frame.TimerDBUpdate().interval, 12000);
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
    fs::rename(file, folder / "gut");
    std::ofstream(file) << "halb kopiert";
    world.boxes.answer();
    frame.tickDBUpdate();
    EXPECT_THAT(world.boxes.last().text, HasSubstr("Sie lässt sich nicht öffnen:"));
    frame.tickDBUpdate();
    EXPECT_THROW(watch.stillOpen(), RuntimeError);
    EXPECT_TRUE(session.database.connection.open());
    fs::copy_file(folder / "gut", file, fs::copy_options::overwrite_existing);
    expectReplaced();
    frame.tickDBUpdate();
    EXPECT_TRUE(session.database.DatenbankOk);
}

TEST_F(DatabaseWatching, SettingsGoIntoTheRegisterThatTheNextStartOpens)
{
    frame.toPage(Page::Start);
    start.setInfoPrio1(0, false);
    replace("Update Ini Set Feld4 = '12000' Where Feld3 = 'Zeitinterval'");
    frame.unload();
    db.Open(file);
    EXPECT_THAT(iniRows("Feld2 = 'Treeview' And Feld3 = 'Knoten'"),
                ElementsAre(HasSubstr("mueller|Treeview|Knoten|0|")));
}

} // namespace quelvarn
