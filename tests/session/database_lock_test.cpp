#include "fakes/fake_patience.h"
#include "frame/main_window.h"
#include "frame/start_page.h"
#include "session/program.h"
#include "session/register_fixture.h"

#include <gmock/gmock.h>

namespace quelvarn {

using ::testing::HasSubstr;

// Another program is writing the register, and the person does not want to wait.
class LockedRegister : public RegisterTest
{
protected:
    LockedRegister() { session.database.Verbindung.setPatience(&patience); }

    FakePatience patience{0};
};

TEST_F(LockedRegister, GivingUpAtTheStartLeavesNoDatabase)
{
    const Transaktion writing(db); // The first start writes the user's rows.
    world.meldungen.antworte();
    world.meldungen.antworte();
    EXPECT_FALSE(Hauptprogramm(session, ports));
    EXPECT_EQ(world.meldungen.gezeigt.at(0).titel, "Fehler beim Öffnen der Datenbank");
    EXPECT_THAT(world.meldungen.letzte().text, HasSubstr("Das Warten auf die Datenbank wurde abgebrochen."));
    EXPECT_EQ(session.database.DatenbankPfad, "");
}

TEST_F(LockedRegister, TheProgramEndsAllTheSameAndTellsThatItsSettingsAreLost)
{
    MainWindow frame(session, operations, {});
    StartPage start(session, operations, frame);
    bool ended = false;
    frame.beendet = [&] { ended = true; };
    meldeAn();
    ASSERT_TRUE(frame.laden());
    frame.zuSeite(Seite::Start);
    start.setzeInfoPrio1(0, false);
    const Transaktion writing(db);
    world.meldungen.erwarte("Schließen der Startseite",
                            "Fehler beim Schließen der Startseite!\nDie Einstellungen wurden nicht gespeichert.");
    world.meldungen.antworte();
    frame.entladen();
    EXPECT_TRUE(ended);
    EXPECT_THAT(world.meldungen.letzte().text, HasSubstr("Das Warten auf die Datenbank wurde abgebrochen."));
}

} // namespace quelvarn
