#include "base/file_path.h"
#include "base/runtime_error.h"
#include "database/connection.h"
#include "database/recordset.h"
#include "engine_fixture.h"
#include "recordset_reference.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <map>
#include <set>

using namespace quelvarn;
using quelvarn::test::alleEngines;
using quelvarn::test::engineName;
using referenz::FELDER;
using testing::ElementsAre;

namespace {

class RecordsetOnEngine : public quelvarn::test::EngineTest
{
protected:
    void fuelleZufaellig(std::size_t anzahl)
    {
        std::vector<Spalte> spalten{{"Id", FeldTyp::Ganzzahl}};
        for (const auto& feld : FELDER)
            spalten.push_back({feld.name, feld.typ});
        std::vector<std::vector<Value>> werte;
        for (std::size_t i = 0; i < anzahl; ++i) {
            zeilen_.push_back(zufall_.zeile());
            werte.push_back({static_cast<std::int64_t>(i)});
            werte.back().insert(werte.back().end(), zeilen_.back().begin(), zeilen_.back().end());
        }
        fuelle(spalten, werte, {{{"Titel", false}, {"Nr", true}}});
    }

    Recordset oeffneRs(std::string_view sql, SperrTyp sperre = SperrTyp::NurLesen, std::size_t ganzBis = 2048)
    {
        if (!verbindung_.offen() && istOdbc())
            verbindung_ = Connection(oeffne());
        else if (!verbindung_.offen()) // An empty file is no database yet.
            verbindung_.OpenAdresse(istPostgres() ? adresse_ : utf8FromPath(ordner_ / "test.qv"));
        Recordset rs;
        rs.setzeGanzGrenze(ganzBis);
        rs.Open(select(sql), verbindung_, CursorTyp::Statisch, sperre);
        return rs;
    }

    static std::vector<std::string> spalte(const Recordset& rs, std::string_view feld)
    {
        std::vector<std::string> werte;
        for (std::size_t i = 0; i < rs.RecordCount(); ++i)
            werte.push_back(istNull(rs.Zelle(i, feld)) ? "Null" : alsText(rs.Zelle(i, feld)));
        return werte;
    }

    // Behind ODBC a recordset is read whole, so that there is nothing to read later.

    static int fehlernummer(const std::function<void()>& tat)
    {
        try {
            tat();
        } catch (const Laufzeitfehler& fehler) {
            return fehler.nummer();
        }
        return 0;
    }

    Connection verbindung_;
    referenz::Zufall zufall_{7};
    std::vector<referenz::Zeile> zeilen_;
};
INSTANTIATE_TEST_SUITE_P(, RecordsetOnEngine, alleEngines, engineName);

// What an engine without row keys cannot: read a column later, tell rows apart that are equal throughout.
class RecordsetWithRowKeys : public RecordsetOnEngine
{};
INSTANTIATE_TEST_SUITE_P(, RecordsetWithRowKeys, test::eigeneEngines, engineName);

// Everything a user of a recordset sees, in one text.
std::string abbild(const Recordset& rs)
{
    std::string text = std::to_string(rs.AbsolutePosition()) + (rs.Bof() ? " bof\n" : rs.Eof() ? " eof\n" : "\n");
    for (std::size_t i = 0; i < rs.RecordCount(); ++i) {
        for (const Spalte& feld : rs.Felder())
            text += alsText(rs.Zelle(i, feld.name)) + "|";
        text += '\n';
    }
    return text;
}

TEST_P(RecordsetWithRowKeys, ReadsLaterWhatItWouldHaveReadAtOnce)
{
    fuelleZufaellig(500);
    const auto* sql = "SELECT * FROM Tafel WHERE Nr >= 0 ORDER BY Titel, Nr DESC";
    Recordset ganz = oeffneRs(sql, SperrTyp::Optimistisch);
    Recordset spaet = oeffneRs(sql, SperrTyp::Optimistisch, 10);
    ASSERT_TRUE(ganz.spalteGeladen("Thema"));
    ASSERT_FALSE(spaet.spalteGeladen("Thema"));
    ASSERT_TRUE(spaet.spalteGeladen("Titel"));
    // The order of rows that are equal in the sort columns is the engine's own.
    const std::vector<std::function<void(Recordset&)>> taten{
        [](Recordset& rs) { rs.Sort("Titel, Nr, Id"); },
        [](Recordset& rs) { rs.setzeAbsolutePosition(17); },
        [](Recordset& rs) { rs.Find("Thema LIKE '%ä%'", 1); },
        [](Recordset& rs) { rs.Find("Thema LIKE 'zz%'"); },
        [](Recordset& rs) { rs.Filter("Wert > 0 OR Tag >= #02/01/24#"); },
        [](Recordset& rs) { rs.Sort("Wert DESC, Id"); },
        [](Recordset& rs) { rs.MoveLast(); },
        [](Recordset& rs) { rs.Filter(""); },
    };
    for (std::size_t i = 0; i < taten.size(); ++i) {
        taten[i](ganz);
        taten[i](spaet);
        ASSERT_EQ(abbild(spaet), abbild(ganz)) << "step " << i;
    }
}

TEST_P(RecordsetOnEngine, TellsWhatOccursAmongTheRowsOfACondition)
{
    fuelleZufaellig(400);
    Recordset rs = oeffneRs("SELECT * FROM Tafel ORDER BY Titel DESC", SperrTyp::NurLesen, 10);
    rs.Filter("Nr = 1");
    rs.MoveNext();
    const std::string vorher = abbild(rs);
    for (int i = 0; i < 60; ++i) {
        const referenz::Bedingung bedingung = zufall_.bedingung(2);
        std::map<std::string, std::string>
            texte; // By sortKey; the spelling stored first stays, but for blanks behind it.
        std::set<double> zahlen;
        for (const referenz::Zeile& zeile : zeilen_) {
            if (bedingung.trifft(zeile) != referenz::Urteil(true))
                continue;
            if (const std::string text = alsText(zeile[1]); !istNull(zeile[1]) && text != "a") {
                std::string& shown = texte.try_emplace(sortKey(text), text).first->second;
                if (shown.ends_with(' ') && !text.ends_with(' '))
                    shown = text;
            }
            if (!istNull(zeile[3]))
                zahlen.insert(alsZahl(zeile[3]));
        }
        std::vector<std::string> erwartet;
        for (const auto& [schluessel, text] : texte)
            erwartet.push_back(text);
        const auto gewaehlt = rs.waehle(bedingung.alsSql);
        ASSERT_TRUE(gewaehlt);
        std::vector<std::string> gefunden =
            rs.verschiedeneTexte("Thema", *gewaehlt, [](std::string_view text) { return text != "a"; });
        if (istOdbc()) { // Which spelling was stored first is not known.
            std::ranges::transform(gefunden, gefunden.begin(), sortKey);
            std::ranges::transform(erwartet, erwartet.begin(), sortKey);
        }
        EXPECT_EQ(gefunden, erwartet) << bedingung.alsSql;
        EXPECT_THAT(rs.verschiedeneZahlen("Wert", *gewaehlt), testing::ElementsAreArray(zahlen)) << bedingung.alsSql;
    }
    EXPECT_EQ(abbild(rs), vorher);
    EXPECT_EQ(fehlernummer([&] { rs.verschiedeneZahlen("Thema", {}); }), 3421);
    EXPECT_EQ(fehlernummer([&] { rs.verschiedeneTexte("Wert", {}); }), 3421);
}

TEST_P(RecordsetWithRowKeys, GivingUpLeavesRowsPlaceAndColumnsAsTheyWere)
{
    fuelleZufaellig(50);
    Recordset rs = oeffneRs("SELECT * FROM Tafel ORDER BY Titel", SperrTyp::NurLesen, 10);
    rs.setzeAbsolutePosition(7);
    const auto niemals = [](std::size_t, std::size_t) { return false; };
    EXPECT_FALSE(rs.Find("Thema LIKE '%a%'", 0, Suchrichtung::Vorwaerts, true, niemals));
    EXPECT_FALSE(rs.ladeSpalten(std::vector<std::string>{"Titel", "Thema", "Nr"}, niemals));
    EXPECT_FALSE(rs.waehle("Thema = 'a'", niemals));
    EXPECT_FALSE(rs.spalteGeladen("Thema") || rs.spalteGeladen("Nr"));
    EXPECT_EQ(rs.AbsolutePosition(), 7u);
    EXPECT_TRUE(rs.ladeSpalten(std::vector<std::string>{"Titel", "Thema", "Nr"}));
    EXPECT_TRUE(rs.spalteGeladen("Thema") && rs.spalteGeladen("Nr"));
}

TEST_P(RecordsetOnEngine, WalksThroughUnreadRowsInBothDirections)
{
    fuelleZufaellig(300);
    Recordset ganz = oeffneRs("SELECT * FROM Tafel ORDER BY Titel, Nr DESC");
    Recordset spaet = oeffneRs("SELECT * FROM Tafel ORDER BY Titel, Nr DESC", SperrTyp::NurLesen, 10);
    std::vector<std::int64_t> hin;
    for (; !spaet.Eof(); spaet.MoveNext()) {
        const auto nummer = static_cast<std::size_t>(alsGanzzahl(spaet.Feld("Id")));
        hin.push_back(static_cast<std::int64_t>(nummer));
        for (std::size_t feld = 0; feld < FELDER.size(); ++feld)
            ASSERT_EQ(spaet.Feld(FELDER[feld].name), zeilen_[nummer][feld]);
    }
    std::vector<std::int64_t> zurueck;
    for (spaet.MoveLast(); !spaet.Bof(); spaet.MovePrevious())
        zurueck.push_back(alsGanzzahl(spaet.Feld("Id")));
    std::reverse(zurueck.begin(), zurueck.end());
    EXPECT_EQ(hin, zurueck);
    EXPECT_EQ(hin.size(), ganz.RecordCount());
}

// A filter, a condition of the engine, and the condition's meaning told row by row.
TEST_P(RecordsetOnEngine, FiltersKeepTheRowsThatMeetTheConditionAsTheEngineDoes)
{
    fuelleZufaellig(400);
    Recordset rs = oeffneRs("SELECT * FROM Tafel ORDER BY Id", SperrTyp::NurLesen, 10);
    std::size_t treffer = 0;
    for (int i = 0; i < 400; ++i) {
        zufall_.filterPatterns = i % 2 == 0;
        const auto bedingung = zufall_.bedingung(3);
        std::vector<std::string> erwartet;
        for (std::size_t id = 0; id < zeilen_.size(); ++id)
            if (bedingung.trifft(zeilen_[id]) == referenz::Urteil(true))
                erwartet.push_back(std::to_string(id));
        if (zufall_.filterPatterns) {
            rs.Filter(bedingung.alsFilter);
            ASSERT_EQ(spalte(rs, "Id"), erwartet) << bedingung.alsFilter;
        }
        ASSERT_EQ(spalte(oeffneRs("SELECT Id FROM Tafel WHERE " + bedingung.alsSql + " ORDER BY Id"), "Id"), erwartet)
            << bedingung.alsSql;
        treffer += erwartet.size();
    }
    EXPECT_GT(treffer, 1000u);
}

TEST_P(RecordsetWithRowKeys, EditsReachExactlyOneOfEqualRows)
{
    fuelle({{"Wort", FeldTyp::Text}, {"Nr", FeldTyp::Ganzzahl}}, {{"a", 1}, {"a", 1}, {"a", 1}, {"b", 2}});
    Recordset rs = oeffneRs("SELECT * FROM Tafel WHERE Wort = 'a'", SperrTyp::Optimistisch);
    rs.MoveNext();
    rs.setzeFeld("Nr", "7");
    rs.Update();
    EXPECT_THAT(lies("SELECT Wort, Nr FROM Tafel ORDER BY Wort, Nr"), ElementsAre("a|1", "a|1", "a|7", "b|2"));
    rs.MoveFirst();
    rs.Delete();
    EXPECT_EQ(rs.Text("Nr"), "7");
    EXPECT_THAT(lies("SELECT Wort, Nr FROM Tafel ORDER BY Wort, Nr"), ElementsAre("a|1", "a|7", "b|2"));
    rs.AddNew();
    rs.setzeFeld("Wort", "c");
    rs.Update();
    rs.setzeFeld("Nr", 9);
    rs.Update();
    EXPECT_THAT(lies("SELECT Wort, Nr FROM Tafel WHERE Wort = 'c'"), ElementsAre("c|9"));
    EXPECT_THAT(spalte(rs, "Nr"), ElementsAre("7", "1", "9"));
}

TEST_P(RecordsetOnEngine, AWritableDistinctHoldsTheFirstOfEqualRowsAndWritesOnlyIt)
{
    fuelle({{"Wort", FeldTyp::Text}, {"Nr", FeldTyp::Ganzzahl}},
           {{"a", 1}, {"A ", 1}, {"ä", 1}, {Value{}, 1}, {"", 1}, {Value{}, 1}, {"b", 1}, {"B", 2}});
    for (const auto sperre : {SperrTyp::NurLesen, SperrTyp::Optimistisch}) {
        Recordset rs = oeffneRs("SELECT DISTINCT * FROM Tafel WHERE Nr = 1 ORDER BY Wort", sperre);
        EXPECT_THAT(rs.RecordCount(), 5u);
    }
    Recordset rs = oeffneRs("SELECT DISTINCT * FROM Tafel WHERE Wort = 'a'", SperrTyp::Optimistisch);
    ASSERT_EQ(rs.RecordCount(), 1u);
    rs.setzeFeld("Nr", 5);
    rs.Update();
    EXPECT_THAT(lies("SELECT Wort, Nr FROM Tafel WHERE Wort = 'a' ORDER BY Nr"), ElementsAre("A |1", "a|5"));
    rs.Delete();
    EXPECT_THAT(lies("SELECT Wort, Nr FROM Tafel WHERE Wort = 'a'"), ElementsAre("A |1"));
}

TEST_P(RecordsetOnEngine, DistinctListsAreBlindToCaseAndSorted)
{
    fuelleWorte({"b", "Ärger", "B ", "a", "arg", "A", Value{}, "ß", "ss"});
    EXPECT_THAT(
        spalte(oeffneRs("SELECT DISTINCT Wort FROM Tafel WHERE Wort NOT LIKE '' ORDER BY Wort DESC"), "Wort"),
        ElementsAre(testing::AnyOf("ß", "ss"), testing::AnyOf("b", "B "), "Ärger", "arg", testing::AnyOf("a", "A")));
}

TEST_P(RecordsetWithRowKeys, RowsThatVanishedReadAsEmpty)
{
    fuelleZufaellig(50);
    Recordset rs = oeffneRs("SELECT * FROM Tafel ORDER BY Id", SperrTyp::Optimistisch, 10);
    fuehreAus("DELETE FROM Tafel WHERE Id = 3");
    fuehreAus("INSERT INTO Tafel (Id, Thema) VALUES (99, 'neu')");
    EXPECT_EQ(rs.RecordCount(), 50u);
    rs.setzeAbsolutePosition(3);
    EXPECT_TRUE(istNull(rs.Feld("Thema")));
    EXPECT_TRUE(istNull(rs.Zelle(3, "Titel")));
    rs.Filter("Thema = 'neu'");
    EXPECT_TRUE(rs.leer());
    rs.Filter("Thema Is Null AND Titel Is Null AND Nr Is Null AND Wert Is Null AND Tag Is Null AND Id = 3");
    EXPECT_EQ(rs.RecordCount(), 1u);
    rs.setzeFeld("Thema", "x");
    EXPECT_EQ(fehlernummer([&] { rs.Update(); }), -2147217864);
    EXPECT_TRUE(istNull(rs.Feld("Thema")));
    rs.Delete(); // What was wanted is so already.
    rs.Filter("");
    EXPECT_EQ(rs.RecordCount(), 49u);
}

TEST_P(RecordsetOnEngine, OwnChangesStayVisibleWhenTheyNoLongerMeetItsCondition)
{
    fuelleZufaellig(50);
    Recordset rs = oeffneRs("SELECT * FROM Tafel WHERE Id < 40 ORDER BY Id", SperrTyp::Optimistisch, 10);
    EXPECT_EQ(rs.Feld("Thema"), rs.Zelle(0, "Thema")); // Both are read ahead now.
    rs.setzeFeld("Id", 70);
    rs.setzeFeld("Thema", "umgezogen");
    rs.AddNew();
    rs.setzeFeld("Id", 71);
    rs.setzeFeld("Thema", "zugezogen");
    rs.Update();
    EXPECT_EQ(rs.Text("Thema"), "zugezogen");
    EXPECT_EQ(rs.Zelle(0, "Thema"), Value(std::string("umgezogen")));
    rs.Filter("Thema LIKE '*gezogen'");
    EXPECT_THAT(spalte(rs, "Id"), ElementsAre("70", "71"));
}

TEST_P(RecordsetOnEngine, ABatchIsWrittenAtOnceOrNotAtAll)
{
    fuelle({{"Wort", FeldTyp::Text}, {"Nr", FeldTyp::Ganzzahl}}, {{"a", 1}, {"b", 2}, {"c", 3}});
    Recordset rs = oeffneRs("SELECT * FROM Tafel ORDER BY Wort", SperrTyp::Stapel);
    rs.Delete();
    rs.setzeFeld("Nr", 20);
    rs.AddNew();
    rs.setzeFeld("Wort", "d");
    rs.Update();
    rs.setzeFeld("Nr", 4);
    rs.Update();
    EXPECT_THAT(spalte(rs, "Nr"), ElementsAre("20", "3", "4"));
    EXPECT_THAT(lies("SELECT Wort, Nr FROM Tafel ORDER BY Wort"), ElementsAre("a|1", "b|2", "c|3"));
    rs.UpdateBatch();
    EXPECT_THAT(lies("SELECT Wort, Nr FROM Tafel ORDER BY Wort"), ElementsAre("b|20", "c|3", "d|4"));

    rs.MoveFirst();
    rs.Delete();
    rs.setzeFeld("Nr", 30);
    fuehreAus("DELETE FROM Tafel WHERE Wort = 'c'");
    EXPECT_EQ(fehlernummer([&] { rs.UpdateBatch(); }), -2147217864);
    EXPECT_THAT(lies("SELECT Wort, Nr FROM Tafel ORDER BY Wort"), ElementsAre("b|20", "d|4"));
    EXPECT_THAT(spalte(oeffneRs("SELECT * FROM Tafel ORDER BY Wort"), "Nr"), ElementsAre("20", "4"));
}

TEST_P(RecordsetOnEngine, WhatIsOpenedToReadCannotBeWritten)
{
    fuelleWorte({"a"});
    Recordset rs = oeffneRs("SELECT * FROM Tafel");
    EXPECT_EQ(fehlernummer([&] { rs.AddNew(); }), 3251);
    EXPECT_EQ(fehlernummer([&] { rs.Delete(); }), 3251);
    EXPECT_EQ(fehlernummer([&] { rs.setzeFeld("Wort", "b"); }), 3251);
    EXPECT_EQ(fehlernummer([&] { rs.UpdateBatch(); }), 3251);
    EXPECT_EQ(fehlernummer([&] { Recordset().Open("DELETE FROM Tafel", verbindung_); }), 3001);
    EXPECT_NE(fehlernummer([&] { oeffneRs("SELECT * FROM Gibtsnicht"); }), 0);
}

TEST_P(RecordsetWithRowKeys, LongReadingCanBeGivenUp)
{
    fuelleZufaellig(50);
    Recordset rs = oeffneRs("SELECT * FROM Tafel ORDER BY Titel", SperrTyp::NurLesen, 10);
    rs.Filter("Nr = 1");
    const auto vorher = spalte(rs, "Id");
    rs.Filter("Thema LIKE '*'", [](std::size_t, std::size_t) { return false; });
    EXPECT_EQ(rs.filterText(), "Nr = 1");
    EXPECT_EQ(spalte(rs, "Id"), vorher);
    EXPECT_FALSE(rs.spalteGeladen("Thema"));
    std::size_t insgesamt = 0;
    rs.Filter("Thema LIKE '*'", [&](std::size_t, std::size_t zeilen) { return insgesamt = zeilen, true; });
    EXPECT_EQ(insgesamt, 50u);
    EXPECT_TRUE(rs.spalteGeladen("Thema"));
}

} // namespace
