#include "fakes/fake_patience.h"
#include "frame/main_window.h"
#include "frame/start_page.h"
#include "session/database_start.h"
#include "session/register_fixture.h"

#include <gmock/gmock.h>

namespace quelvarn {

using ::testing::HasSubstr;

// Another program is writing the register, and the person does not want to wait.
class LockedRegister : public RegisterTest
{
protected:
    LockedRegister() { session.database.connection.setPatience(&patience); }

    FakePatience patience{0};
};

TEST_F(LockedRegister, GivingUpAtTheStartLeavesNoDatabase)
{
    const Transaction writing(db); // The first start writes the user's rows.
    world.boxes.answer();
    world.boxes.answer();
    EXPECT_FALSE(Hauptprogramm(session, ports));
    EXPECT_EQ(world.boxes.shown.at(0).title, "Fehler beim Öffnen der Datenbank");
    EXPECT_THAT(world.boxes.last().text, HasSubstr("Das Warten auf die Datenbank wurde abgebrochen."));
    EXPECT_EQ(session.database.DatenbankPfad, "");
}

TEST_F(LockedRegister, TheProgramEndsAllTheSameAndTellsThatItsSettingsAreLost)
{
    MainWindow frame(session, operations, {});
    StartPage start(session, operations, frame);
    bool ended = false;
    frame.ended = [&] { ended = true; };
    addListener();
    ASSERT_TRUE(frame.laden());
    frame.toPage(Page::Start);
    start.setInfoPrio1(0, false);
    const Transaction writing(db);
    world.boxes.expect("Schließen der Startseite",
                       "Fehler beim Schließen der Startseite!\nDie Einstellungen wurden nicht gespeichert.");
    world.boxes.answer();
    frame.unload();
    EXPECT_TRUE(ended);
    EXPECT_THAT(world.boxes.last().text, HasSubstr("Das Warten auf die Datenbank wurde abgebrochen."));
}

} // namespace quelvarn
