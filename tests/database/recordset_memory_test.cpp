#include "base/runtime_error.h"
#include "database/recordset.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace quelvarn;
using testing::ElementsAre;

namespace {

// A recordset in memory with the fields Name (text), Nr (integer) and Wert (double).
Recordset recordsetMit(const std::vector<std::pair<std::string, int>>& zeilen)
{
    Recordset rs;
    rs.FeldAnhaengen("Name", FeldTyp::Text);
    rs.FeldAnhaengen("Nr", FeldTyp::Ganzzahl);
    rs.FeldAnhaengen("Wert", FeldTyp::Gleitkomma);
    rs.Open();
    for (const auto& [name, nr] : zeilen) {
        rs.AddNew();
        rs.setzeFeld("Name", name);
        rs.setzeFeld("Nr", nr);
        rs.Update();
    }
    if (!rs.leer())
        rs.MoveFirst();
    return rs;
}

std::vector<std::string> namen(const Recordset& rs)
{
    std::vector<std::string> ergebnis;
    for (std::size_t i = 0; i < rs.RecordCount(); ++i)
        ergebnis.push_back(alsText(rs.Zelle(i, "Name")));
    return ergebnis;
}

int fehlernummer(const std::function<void()>& tat)
{
    try {
        tat();
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_NE(fehler.beschreibung(), "");
        return fehler.nummer();
    }
    return 0;
}

// Where the cursor stands: "bof", "eof", "leer" or the name of the row.
std::string stelle(const Recordset& rs)
{
    if (rs.leer())
        return "leer";
    return rs.Bof() ? "bof" : rs.Eof() ? "eof" : rs.Text("name");
}

struct Bewegung
{
    std::string schritte; // f first, l last, n next, p previous, d delete, a add "N"
    std::string stelle;
};

class RecordsetCursor : public testing::TestWithParam<Bewegung>
{};

TEST_P(RecordsetCursor, StandsWhereAdoWouldStand)
{
    auto rs = recordsetMit({{"A", 1}, {"B", 2}, {"C", 3}});
    for (const char schritt : GetParam().schritte) {
        if (schritt == 'f')
            rs.MoveFirst();
        else if (schritt == 'l')
            rs.MoveLast();
        else if (schritt == 'n')
            rs.MoveNext();
        else if (schritt == 'p')
            rs.MovePrevious();
        else if (schritt == 'd')
            rs.Delete();
        else {
            rs.AddNew();
            rs.setzeFeld("NAME", "N");
        }
    }
    EXPECT_EQ(stelle(rs), GetParam().stelle);
}

INSTANTIATE_TEST_SUITE_P(Steps, RecordsetCursor,
                         testing::Values(Bewegung{"", "A"}, Bewegung{"n", "B"}, Bewegung{"nnn", "eof"},
                                         Bewegung{"p", "bof"}, Bewegung{"pn", "A"}, Bewegung{"lnp", "C"},
                                         Bewegung{"d", "B"}, Bewegung{"ld", "eof"}, Bewegung{"ldp", "B"},
                                         Bewegung{"ddd", "leer"}, Bewegung{"ddda", "N"}, Bewegung{"dddaf", "N"},
                                         Bewegung{"a", "N"}, Bewegung{"afp", "bof"}, Bewegung{"an", "eof"},
                                         Bewegung{"ap", "C"}, Bewegung{"ad", "A"}, Bewegung{"nad", "B"}));

TEST(Recordset, RefusesWhatThereIsNoRowOrFieldFor)
{
    auto rs = recordsetMit({{"A", 1}});
    const auto leer = [] { return recordsetMit({}); };
    const std::vector<std::pair<int, std::function<void()>>> faelle{
        {3265, [&] { rs.Feld("Gibtsnicht"); }},
        {3265, [&] { rs.setzeFeld("Gibtsnicht", Value{}); }},
        {3265, [&] { rs.Filter("Gibtsnicht = 1"); }},
        {3265, [&] { rs.Sort("Gibtsnicht"); }},
        {3001, [&] { rs.Find(""); }},
        {3705, [&] { rs.FeldAnhaengen("Spaeter", FeldTyp::Text); }},
        {3021, [&] { leer().Feld("Name"); }},
        {3021, [&] { leer().MoveFirst(); }},
        {3021, [&] { leer().MoveNext(); }},
        {3021, [&] { leer().Delete(); }},
        {3021, [&] { leer().setzeFeld("Name", Value{}); }},
        {3021, [&] { leer().bookmark(); }},
        {3704, [&] { Recordset().MoveFirst(); }},
        {3704, [&] { Recordset().AddNew(); }},
        {-2147217913, [&] { rs.setzeFeld("Nr", "abc"); }},
    };
    for (std::size_t i = 0; i < faelle.size(); ++i)
        EXPECT_EQ(fehlernummer(faelle[i].second), faelle[i].first) << "case " << i;
    rs.MoveNext();
    EXPECT_EQ(fehlernummer([&] { rs.MoveNext(); }), 3021);
    EXPECT_EQ(fehlernummer([&] { rs.Feld("Name"); }), 3021);
    EXPECT_TRUE(Recordset().leer());
}

TEST(Recordset, TakesValuesAsTheTypeOfTheirField)
{
    auto rs = recordsetMit({});
    rs.AddNew();
    EXPECT_TRUE(istNull(rs.Feld("Nr")));
    rs.setzeFeld("Nr", "12");
    rs.setzeFeld("Wert", "1,5");
    rs.setzeFeld("Name", 2.25);
    EXPECT_EQ(rs.Feld("nr"), Value(std::int64_t{12}));
    rs.Update();
    EXPECT_EQ(rs.Feld("NR"), Value(std::int64_t{12}));
    EXPECT_EQ(rs.Feld("Wert"), Value(1.5));
    EXPECT_EQ(rs.Text("Name"), "2,25");
    rs.setzeFeld("Name", Value{});
    rs.setzeFeld("Wert", Value{});
    rs.Update();
    EXPECT_TRUE(istNull(rs.Feld("Name")) && istNull(rs.Feld("Wert")));
    rs.setzeFeld("Name", std::string());
    EXPECT_FALSE(istNull(rs.Feld("Name")));
}

TEST(Recordset, CancelUpdateForgetsAndAMoveKeepsWhatWasSet)
{
    auto rs = recordsetMit({{"A", 1}, {"B", 2}});
    rs.setzeFeld("Name", "X");
    rs.CancelUpdate();
    EXPECT_EQ(rs.Text("Name"), "A");
    rs.AddNew();
    rs.CancelUpdate();
    EXPECT_THAT(namen(rs), ElementsAre("A", "B"));
    rs.setzeFeld("Name", "X");
    rs.MoveNext();
    EXPECT_THAT(namen(rs), ElementsAre("X", "B"));
}

TEST(Recordset, BookmarksOutliveFilterSortAndDeletion)
{
    auto rs = recordsetMit({{"C", 3}, {"A", 1}, {"D", 4}, {"B", 2}});
    rs.MoveLast();
    const Bookmark b = rs.bookmark();
    rs.MoveFirst();
    const Bookmark c = rs.bookmark();
    rs.Sort("Name");
    ASSERT_TRUE(rs.setzeBookmark(b));
    EXPECT_EQ(rs.AbsolutePosition(), 1u);
    rs.Filter("Nr < 3");
    EXPECT_TRUE(rs.setzeBookmark(b));
    EXPECT_FALSE(rs.setzeBookmark(c));
    EXPECT_EQ(rs.Text("Name"), "B");
    rs.Delete();
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(rs.AbsolutePosition(), rs.RecordCount());
    rs.Filter("");
    EXPECT_FALSE(rs.setzeBookmark(b));
    rs.Sort("");
    EXPECT_THAT(namen(rs), ElementsAre("C", "A", "D"));
    rs.setzeAbsolutePosition(2);
    EXPECT_EQ(rs.Text("Name"), "D");
}

TEST(Recordset, SortsAsTheDatabaseDoesNullFirstAndStable)
{
    auto rs = recordsetMit({{"b", 1}, {"Ä", 2}, {"a", 1}, {"B ", 2}, {"z", 2}});
    rs.AddNew();
    rs.setzeFeld("Nr", 2);
    rs.Update();
    rs.Sort("Name");
    EXPECT_THAT(namen(rs), ElementsAre("", "a", "Ä", "b", "B ", "z"));
    rs.Sort("Name DESC");
    EXPECT_THAT(namen(rs), ElementsAre("z", "b", "B ", "Ä", "a", ""));
    rs.Sort("[Nr] asc, Name desc");
    EXPECT_THAT(namen(rs), ElementsAre("b", "a", "z", "B ", "Ä", ""));
    rs.Filter("Nr = 2");
    EXPECT_THAT(namen(rs), ElementsAre("z", "B ", "Ä", ""));
    rs.AddNew();
    rs.setzeFeld("Name", "neu");
    rs.Update();
    EXPECT_THAT(namen(rs), ElementsAre("z", "B ", "Ä", "", "neu"));
    rs.Sort("Wert");
    EXPECT_THAT(namen(rs), ElementsAre("Ä", "B ", "z", "", "neu"));
}

TEST(Recordset, SortsNumbersOfBothSigns)
{
    auto rs = recordsetMit({});
    for (const double wert : {2.5, -1.0, 0.0, -3.5, 1e300, -1e-300}) {
        rs.AddNew();
        rs.setzeFeld("Wert", wert);
        rs.Update();
    }
    rs.Sort("Wert");
    std::vector<double> werte;
    for (std::size_t i = 0; i < rs.RecordCount(); ++i)
        werte.push_back(alsZahl(rs.Zelle(i, "Wert")));
    EXPECT_THAT(werte, ElementsAre(-3.5, -1.0, -1e-300, 0.0, 2.5, 1e300));
}

TEST(Recordset, FindGoesBothWaysAndEndsBehindTheRows)
{
    auto rs = recordsetMit({{"Achse", 1}, {"Welle", 2}, {"Achse 2", 3}, {"a*", 4}, {"Hauptachse", 5}});
    struct Fall
    {
        std::string kriterium;
        std::size_t start, ueberspringe;
        Suchrichtung richtung;
        bool vonAnfang;
        std::string stelle;
    };
    const auto vor = Suchrichtung::Vorwaerts;
    const auto zurueck = Suchrichtung::Rueckwaerts;
    const std::vector<Fall> faelle{
        {"Name LIKE 'achse%'", 0, 0, vor, false, "Achse"},
        {"Name LIKE 'ACHSE%'", 0, 1, vor, false, "Achse 2"},
        {"Name LIKE '%achse%'", 3, 0, vor, false, "Hauptachse"},
        {"Name LIKE '%achse%'", 3, 0, vor, true, "Achse"},
        {"Name LIKE 'achse%'", 2, 1, vor, false, "eof"},
        {"Name LIKE 'achse%'", 3, 0, zurueck, false, "Achse 2"},
        {"Name LIKE 'achse%'", 2, 1, zurueck, false, "Achse"},
        {"Name LIKE 'achse%'", 0, 1, zurueck, false, "bof"},
        {"Name LIKE '%achse%'", 0, 0, zurueck, true, "Hauptachse"},
        {"Name LIKE 'x%'", 0, 0, vor, true, "eof"},
        {"Name LIKE 'a*'", 0, 0, vor, true, "a*"},
        {"Nr > 1 AND Nr < 4", 0, 1, vor, false, "Welle"},
        {"Name LIKE 'achse%'", 0, 9, vor, false, "eof"},
    };
    for (const Fall& fall : faelle) {
        rs.setzeAbsolutePosition(fall.start);
        const bool gefunden = rs.Find(fall.kriterium, fall.ueberspringe, fall.richtung, fall.vonAnfang);
        EXPECT_EQ(stelle(rs), fall.stelle) << fall.kriterium;
        EXPECT_EQ(gefunden, fall.stelle != "eof" && fall.stelle != "bof") << fall.kriterium;
    }
    rs.Sort("Name");
    rs.Filter("Name LIKE '*achse*'");
    EXPECT_TRUE(rs.Find("Name LIKE '%achse%'", 1));
    EXPECT_EQ(rs.Text("Name"), "Achse 2");
}

TEST(Recordset, ABadFilterLeavesTheOldOne)
{
    auto rs = recordsetMit({{"A", 1}, {"B", 2}});
    rs.Filter("Nr = 2");
    for (const auto* schlecht : {"Nr = ", "Nr = 2 OR", "Weg = 1", "DROP TABLE x"})
        EXPECT_NE(fehlernummer([&] { rs.Filter(schlecht); }), 0) << schlecht;
    EXPECT_EQ(rs.filterText(), "Nr = 2");
    EXPECT_THAT(namen(rs), ElementsAre("B"));
    rs.Filter("Nr > 5");
    EXPECT_TRUE(rs.leer());
    rs.Filter("");
    EXPECT_EQ(stelle(rs), "A");
}

TEST(Recordset, CloseAndOpenEmptyARecordsetInMemory)
{
    auto rs = recordsetMit({{"A", 1}});
    rs.Close();
    EXPECT_FALSE(rs.offen());
    rs.Open();
    EXPECT_TRUE(rs.leer());
    EXPECT_TRUE(rs.hatFeld("WERT"));
}

} // namespace
