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
    void SetUp() override { addListener(); }
};

TEST_F(SettingsWriter, StartPageLeavesItsSwitches)
{
    remove("Feld1 = 'mueller' AND Feld3 = 'ZusDoku'");
    session.pages.ActiveQuelvarn = true;
    session.orders.OfflineTool = "Druvik";
    session.Tree.Node = false;
    session.Tree.ZusDoku = false;
    writeStartPage(session);
    EXPECT_THAT(iniRows("Feld2 = 'ActiveQuelvarn'"), ElementsAre("mueller|ActiveQuelvarn|1|~|~"));
    EXPECT_THAT(iniRows("Feld3 = 'Offline'"), ElementsAre("!QV_Ini|Plot|Offline|Druvik|~"));
    EXPECT_THAT(iniRows("Feld2 = 'Treeview' AND Feld4 = '0'"),
                ElementsAre("mueller|Treeview|Knoten|0|Knoten immer geöffnet"));
    EXPECT_THAT(iniRows("Feld3 = 'ZusDoku'"), IsEmpty()); // Only rows that exist.

    ASSERT_TRUE(Hauptprogramm(session, ports)); // The missing row is there again, switched on.
    EXPECT_TRUE(session.pages.ActiveQuelvarn && session.Tree.ZusDoku && !session.Tree.Node);
    EXPECT_EQ(session.orders.OfflineTool, "Druvik");
}

TEST_F(SettingsWriter, DocumentPageLeavesSearchTextsTableAndOrderOptions)
{
    insert({"meier|Suchen/Filtern|Text0|seins|~", "mueller|Suchen/Filtern|Text0|alt|~"});
    const std::string longText(60, 'x');
    session.pages.SearchTexts = {"Flansch", "", "ü" + longText};
    session.orders.OfflineArt.clear();
    session.orders.OfflineNummer = "(2)";
    session.orders.OfflineExportArt = "BOM";
    writeDocumentPage(session, 3);
    EXPECT_THAT(iniRows("Feld2 = 'Suchen/Filtern'"),
                ElementsAre("meier|Suchen/Filtern|Text0|seins|~", "mueller|Suchen/Filtern|Text0|Flansch|~",
                            "mueller|Suchen/Filtern|Text1|" + longText.substr(0, 50) + "|~"));
    EXPECT_THAT(iniRows("Feld2 = 'Starttabelle'"), ElementsAre("mueller|Starttabelle|Zeichnungen|~|~"));
    EXPECT_THAT(iniRows("Feld2 = 'OfflineDaten'"), ElementsAre("mueller|OfflineDaten|Leer|(2)|BOM"));

    insert({"mueller|Suchen/Filtern|Text10|fremd|~"}); // Of no key: it goes with the next writing.
    session.pages.SearchTexts = {"Flansch"};
    writeDocumentPage(session, 3);
    EXPECT_THAT(iniRows("Feld1 = 'mueller' AND Feld2 = 'Suchen/Filtern'"),
                ElementsAre("mueller|Suchen/Filtern|Text0|Flansch|~"));

    session.pages.SearchTexts.clear();
    writeDocumentPage(session, 5); // A special table is no start table.
    EXPECT_THAT(iniRows("Feld1 = 'mueller' AND Feld2 = 'Suchen/Filtern'"), IsEmpty());
    EXPECT_THAT(iniRows("Feld2 = 'Starttabelle'"), ElementsAre("mueller|Starttabelle|Zeichnungen|~|~"));
}

TEST_F(SettingsWriter, StampsAreSetOneMinuteAheadAndNeedFiveRows)
{
    const DateTime now = DateTime::from({2004, 3, 2, 23, 59, 30});
    EXPECT_EQ(readStamp(db, "PART"), DateTime::from({2004, 3, 1, 8, 0, 0}));
    EXPECT_EQ(readStamp(db, "DRAFT"), DateTime{}); // "gestern"
    EXPECT_EQ(readStamp(db, "ASSEMB"), DateTime{});
    EXPECT_EQ(readStamp(db, "SHEETM"), std::nullopt);

    setStamp(db, "ASSEMB", now);
    setStamp(db, "SHEETM", now);
    EXPECT_EQ(readStamp(db, "ASSEMB"), now.plusSeconds(60));
    EXPECT_THAT(iniRows("Feld3 = 'ASSEMB' OR Feld3 = 'SHEETM'"),
                ElementsAre("!QV_Ini|WriteDB|ASSEMB|03.03.2004 00:00:30|~"));

    remove("Feld3 = 'WELD'"); // Four are left, the interval among them.
    setStamp(db, "PART", now);
    EXPECT_EQ(readStamp(db, "PART"), std::nullopt);
    EXPECT_THAT(iniRows("Feld3 = 'PART'"), ElementsAre("!QV_Ini|WriteDB|PART|01.03.2004 08:00:00|~"));
}

} // namespace quelvarn
