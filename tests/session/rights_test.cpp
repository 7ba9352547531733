#include "fakes/fake_boxes.h"
#include "session/rights.h"

#include <gtest/gtest.h>

namespace quelvarn {

using Werte = std::array<int, ANZAHL_STATUS>;

TEST(Rights, StatusScopeAndAccessLineFollowTheVisibleStatuses)
{
    const struct
    {
        Werte sichtbar;
        std::string where, und, zeile;
    } faelle[] = {
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
    for (const auto& fall : faelle) {
        SessionState session;
        session.rights.Sichtbar = fall.sichtbar;
        bildeStatusbereich(session);
        EXPECT_EQ(session.rights.WhereStatus, fall.where);
        EXPECT_EQ(session.rights.AndStatus, fall.und);
        EXPECT_EQ(zugriffstext(session), fall.zeile);
    }
}

TEST(Rights, DeletionCodesDecideForOwnAndForeignRowsAndFiles)
{
    // Per code: own row, foreign row, own file, foreign file.
    const bool erlaubt[7][4] = {
        {false, false, false, false}, {true, false, false, false},  {false, true, false, false},
        {false, false, false, false}, {false, false, false, false}, {true, false, true, false},
        {true, true, true, true},
    };
    for (int code = 0; code <= 6; ++code) {
        SessionState session;
        session.rights.LoeschRecht.fill(code);
        FakeMeldungen meldungen;
        meldungen.erlaubeHinweise();
        EXPECT_EQ(PruefeLoeschenDB(session, meldungen, 3, 1, 5), erlaubt[code][0]) << code;
        EXPECT_EQ(PruefeLoeschenDB(session, meldungen, 3, 2, 6), erlaubt[code][1]) << code;
        EXPECT_EQ(PruefeLoeschenDatei(session, meldungen, 3, 5), erlaubt[code][2]) << code;
        EXPECT_EQ(PruefeLoeschenDatei(session, meldungen, 3, 6), erlaubt[code][3]) << code;
        EXPECT_TRUE(PruefeLoeschenDB(session, meldungen, 7, 1, 5));
        EXPECT_TRUE(PruefeLoeschenDatei(session, meldungen, -1, 6));
    }
}

TEST(Rights, RefusalsTellStatusAndOwnership)
{
    SessionState session;
    FakeMeldungen meldungen;
    const std::string titel = "Keine Berechtigung zum Löschen bei Status 4";
    const std::string anfang = "Sie haben nicht die Berechtigung zum Löschen von Dateien mit Status 4";
    const std::string ende = "\n\nWenden Sie sich an ihren Systemadministrator für Quelvarnis.";
    const std::string auch = "\nDies gilt auch für Dateien, bei denen Sie als Besitzer eingetragen sind!";
    const std::string fremd = ", bei denen Sie nicht als Besitzer eingetragen sind!";
    meldungen.erwarte(titel, anfang + " aus der Datenbank." + auch + ende);
    meldungen.erwarte(titel, anfang + "\n aus der Datenbank" + fremd + ende);
    meldungen.erwarte(titel, anfang + " aus dem Verzeichnis." + auch + ende);
    meldungen.erwarte(titel, anfang + "\n aus dem Verzeichnis" + fremd + ende);
    PruefeLoeschenDB(session, meldungen, 4, 1, 5);
    PruefeLoeschenDB(session, meldungen, 4, 2, 6);
    PruefeLoeschenDatei(session, meldungen, 4, 5);
    PruefeLoeschenDatei(session, meldungen, 4, 6);
    EXPECT_EQ(meldungen.letzte().symbol, Symbol::Warnung);
}

} // namespace quelvarn
