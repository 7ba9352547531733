#include "fakes/fake_boxes.h"
#include "session/access_line.h"
#include "session/rights.h"

#include <gtest/gtest.h>

namespace quelvarn {

using Values = std::array<int, STATUS_COUNT>;

TEST(Rights, StatusScopeAndAccessLineFollowTheVisibleStatuses)
{
    const struct
    {
        Values visible;
        std::string where, both, row;
    } cases[] = {
        {{1, 1, 1, 1, 1, 1}, "", "", "Zugriffsberechtigung:             Alle Stati von 0 bis 5"},
        {{3, 3, 0, 0, 0, 0}, "", "", "Zugriffsberechtigung:             Alle Stati von 0 bis 5"},
        {{0, 0, 0, 1, 0, 0},
         " WHERE ( Status = 3)",
         " AND ( Status = 3)",
         "Zugriffsberechtigung:             3=Freigegeben"},
        {{0, 0, 0, 0, 1, 0},
         " WHERE ( Status = 4)",
         " AND ( Status = 4)",
         "Zugriffsberechtigung:             4=Festgeschr."},
        {{0, 0, 0, 1, 1, 0},
         " WHERE ( Status = 3 OR Status = 4)",
         " AND ( Status = 3 OR Status = 4)",
         "Berechtigung: 3=Freigegeben; 4=Festgeschr.;"},
        {{0, 0, 0, 1, 0, 1},
         " WHERE ( Status = 3 OR Status = 5)",
         " AND ( Status = 3 OR Status = 5)",
         "Berechtigung: 3=Freigegeben; 5=Ungültig;"},
        {{1, 0, 0, 0, 0, 0}, " WHERE (Status = 0)", " AND ( Status = 0)", "Berechtigung: 0=Verfügbar;"},
        {{1, 1, 1, 0, 0, 0},
         " WHERE (Status = 0 OR Status = 1 OR Status = 2)",
         " AND ( Status = 0 OR Status = 1 OR Status = 2)",
         "Berechtigung: 0=Verfügbar; 1=In Arbeit; 2=Wird geprüft;"},
        {{2, 0, 0, 1, 0, 0},
         " WHERE ( Status = 3)",
         " AND ( Status = 3)",
         "Zugriffsberechtigung:             3=Freigegeben"},
        {{0, 0, 0, 0, 0, 0}, " WHERE ()", " AND ()", "Berechtigung:"},
    };
    for (const auto& testCase : cases) {
        SessionState session;
        session.rights.Sichtbar = testCase.visible;
        formStatusSection(session.rights);
        EXPECT_EQ(session.rights.WhereStatus, testCase.where);
        EXPECT_EQ(session.rights.AndStatus, testCase.both);
        EXPECT_EQ(accessLine(session.rights), testCase.row);
    }
}

TEST(Rights, DeletionCodesDecideForOwnAndForeignRowsAndFiles)
{
    // Per code: own row, foreign row, own file, foreign file.
    const bool allowed[7][4] = {
        {false, false, false, false}, {true, false, false, false},  {false, true, false, false},
        {false, false, false, false}, {false, false, false, false}, {true, false, true, false},
        {true, true, true, true},
    };
    for (int code = 0; code <= 6; ++code) {
        SessionState session;
        session.rights.LoeschRecht.fill(code);
        FakeBoxes boxes;
        boxes.allowHints();
        EXPECT_EQ(PruefeLoeschenDB(session.rights, boxes, 3, 1, 5), allowed[code][0]) << code;
        EXPECT_EQ(PruefeLoeschenDB(session.rights, boxes, 3, 2, 6), allowed[code][1]) << code;
        EXPECT_EQ(PruefeLoeschenDatei(session.rights, boxes, 3, 5), allowed[code][2]) << code;
        EXPECT_EQ(PruefeLoeschenDatei(session.rights, boxes, 3, 6), allowed[code][3]) << code;
        EXPECT_TRUE(PruefeLoeschenDB(session.rights, boxes, 7, 1, 5));
        EXPECT_TRUE(PruefeLoeschenDatei(session.rights, boxes, -1, 6));
    }
}

TEST(Rights, RefusalsTellStatusAndOwnership)
{
    SessionState session;
    FakeBoxes boxes;
    const std::string title = "Keine Berechtigung zum Löschen bei Status 4";
    const std::string begin = "Sie haben nicht die Berechtigung zum Löschen von Dateien mit Status 4";
    const std::string end = "\n\nWenden Sie sich an ihren Systemadministrator für Quelvarnis.";
    const std::string also = "\nDies gilt auch für Dateien, bei denen Sie als Besitzer eingetragen sind!";
    const std::string fremd = ", bei denen Sie nicht als Besitzer eingetragen sind!";
    boxes.expect(title, begin + " aus der Datenbank." + also + end);
    boxes.expect(title, begin + "\n aus der Datenbank" + fremd + end);
    boxes.expect(title, begin + " aus dem Verzeichnis." + also + end);
    boxes.expect(title, begin + "\n aus dem Verzeichnis" + fremd + end);
    PruefeLoeschenDB(session.rights, boxes, 4, 1, 5);
    PruefeLoeschenDB(session.rights, boxes, 4, 2, 6);
    PruefeLoeschenDatei(session.rights, boxes, 4, 5);
    PruefeLoeschenDatei(session.rights, boxes, 4, 6);
    EXPECT_EQ(boxes.last().icon, Icon::Warning);
}

} // namespace quelvarn
