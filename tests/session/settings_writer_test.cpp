#include "documents/table_stamps.h"
#include "session/register_fixture.h"
#include "session/settings_writer.h"

#include <gmock/gmock.h>

namespace quelvarn {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SettingsWriter : public RegisterTest
{
protected:
    void SetUp() override { meldeAn(); }
};

TEST_F(SettingsWriter, StartPageLeavesItsSwitches)
{
    loesche("Feld1 = 'mueller' AND Feld3 = 'ZusDoku'");
    session.pages.ActiveQuelvarn = true;
    session.orders.OfflineTool = "Druvik";
    session.Tree.Knoten = false;
    session.Tree.ZusDoku = false;
    schreibeStartseite(session);
    EXPECT_THAT(iniZeilen("Feld2 = 'ActiveQuelvarn'"), ElementsAre("mueller|ActiveQuelvarn|1|~|~"));
    EXPECT_THAT(iniZeilen("Feld3 = 'Offline'"), ElementsAre("!QV_Ini|Plot|Offline|Druvik|~"));
    EXPECT_THAT(iniZeilen("Feld2 = 'Treeview' AND Feld4 = '0'"),
                ElementsAre("mueller|Treeview|Knoten|0|Knoten immer geöffnet"));
    EXPECT_THAT(iniZeilen("Feld3 = 'ZusDoku'"), IsEmpty()); // Only rows that exist.

    ASSERT_TRUE(Hauptprogramm(session, ports)); // The missing row is there again, switched on.
    EXPECT_TRUE(session.pages.ActiveQuelvarn && session.Tree.ZusDoku && !session.Tree.Knoten);
    EXPECT_EQ(session.orders.OfflineTool, "Druvik");
}

TEST_F(SettingsWriter, DocumentPageLeavesSearchTextsTableAndOrderOptions)
{
    fuegeEin({"meier|Suchen/Filtern|Text0|seins|~", "mueller|Suchen/Filtern|Text0|alt|~"});
    const std::string lang(60, 'x');
    session.pages.Suchtexte = {"Flansch", "", "ü" + lang};
    session.orders.OfflineArt.clear();
    session.orders.OfflineNummer = "(2)";
    session.orders.OfflineExportArt = "BOM";
    schreibeDokumentseite(session, 3);
    EXPECT_THAT(iniZeilen("Feld2 = 'Suchen/Filtern'"),
                ElementsAre("meier|Suchen/Filtern|Text0|seins|~", "mueller|Suchen/Filtern|Text0|Flansch|~",
                            "mueller|Suchen/Filtern|Text1|" + lang.substr(0, 50) + "|~"));
    EXPECT_THAT(iniZeilen("Feld2 = 'Starttabelle'"), ElementsAre("mueller|Starttabelle|Zeichnungen|~|~"));
    EXPECT_THAT(iniZeilen("Feld2 = 'OfflineDaten'"), ElementsAre("mueller|OfflineDaten|Leer|(2)|BOM"));

    fuegeEin({"mueller|Suchen/Filtern|Text10|fremd|~"}); // Of no key: it goes with the next writing.
    session.pages.Suchtexte = {"Flansch"};
    schreibeDokumentseite(session, 3);
    EXPECT_THAT(iniZeilen("Feld1 = 'mueller' AND Feld2 = 'Suchen/Filtern'"),
                ElementsAre("mueller|Suchen/Filtern|Text0|Flansch|~"));

    session.pages.Suchtexte.clear();
    schreibeDokumentseite(session, 5); // A special table is no start table.
    EXPECT_THAT(iniZeilen("Feld1 = 'mueller' AND Feld2 = 'Suchen/Filtern'"), IsEmpty());
    EXPECT_THAT(iniZeilen("Feld2 = 'Starttabelle'"), ElementsAre("mueller|Starttabelle|Zeichnungen|~|~"));
}

TEST_F(SettingsWriter, StampsAreSetOneMinuteAheadAndNeedFiveRows)
{
    const Zeitpunkt jetzt = Zeitpunkt::aus({2004, 3, 2, 23, 59, 30});
    EXPECT_EQ(leseStempel(db, "PART"), Zeitpunkt::aus({2004, 3, 1, 8, 0, 0}));
    EXPECT_EQ(leseStempel(db, "DRAFT"), Zeitpunkt{}); // "gestern"
    EXPECT_EQ(leseStempel(db, "ASSEMB"), Zeitpunkt{});
    EXPECT_EQ(leseStempel(db, "SHEETM"), std::nullopt);

    setzeStempel(db, "ASSEMB", jetzt);
    setzeStempel(db, "SHEETM", jetzt);
    EXPECT_EQ(leseStempel(db, "ASSEMB"), jetzt.plusSekunden(60));
    EXPECT_THAT(iniZeilen("Feld3 = 'ASSEMB' OR Feld3 = 'SHEETM'"),
                ElementsAre("!QV_Ini|WriteDB|ASSEMB|03.03.2004 00:00:30|~"));

    loesche("Feld3 = 'WELD'"); // Four are left, the interval among them.
    setzeStempel(db, "PART", jetzt);
    EXPECT_EQ(leseStempel(db, "PART"), std::nullopt);
    EXPECT_THAT(iniZeilen("Feld3 = 'PART'"), ElementsAre("!QV_Ini|WriteDB|PART|01.03.2004 08:00:00|~"));
}

} // namespace quelvarn
