#include "base/runtime_error.h"
#include "filter/execution.h"
#include "filter/filter_fixture.h"

namespace quelvarn {
namespace {

const std::string URSACHE =
    "Mögliche Ursache:\n- Sie haben keine Zugriffsberechtigung.\n- Es ist ein <Neuaufbau> erforderlich.";

// Eight parts: A to D of Meier, E to H of Schulze.
class FilterRunTest : public FilterTest
{
protected:
    FilterRunTest()
    {
        const auto tag = [](int t) { return Zeitpunkt::aus({2026, 11, t, 23, 59, 59}); };
        teil("A", "Meier", "Welle 1", 0, tag(3));
        teil("B", "Meier", "Welle 2", 1, tag(4));
        teil("C", "Meier", "Achse", 2, tag(11));
        teil("D", "Meier", "Achse", 3, tag(12));
        teil("E", "Schulze", "Welle 1", 1, tag(3));
        teil("F", "Schulze", "Rad", 2, tag(4));
        teil("G", "Schulze", "Rad", 3, tag(11));
        dokument("H", {{"Autor", "schulze"}, {"Hauptwert_b", 1.5}, {"Hauptmerkmal_C", "W"}});
    }

    void teil(const std::string& name, const char* autor, const char* titel, int status, Zeitpunkt tag)
    {
        dokument(name, {{"Autor", autor},
                        {"Titel", titel},
                        {"Status", status},
                        {"Erstellt", tag},
                        {"Hauptwert_b", 2.0 + status},
                        {"Hauptmerkmal_C", "W"},
                        {"Hauptmerkmal_D", titel}});
    }

    Filterzustand& zustand() { return kontext_.zustand(); }
    void schritte(const std::vector<FilterSchritt>& neue)
    {
        zustand().FilterSchritte.fill({});
        std::copy(neue.begin(), neue.end(), zustand().FilterSchritte.begin());
        zustand().FilterAnzahl = static_cast<int>(neue.size());
    }
    void haken(std::initializer_list<std::size_t> stati)
    {
        zustand().ChFilterStat.fill(false);
        for (const std::size_t status : stati)
            zustand().ChFilterStat[status] = true;
        BuildStatusFilter(filter_, 0);
    }
    void erwarteLeer(const std::string& text) { welt_.meldungen.erwarte("Filtervorgaben", text + URSACHE); }
};

const FilterSchritt MEIER{"Autor", "meier", CodeText, {}};
const FilterSchritt WELLE{"Titel", "Welle*", CodeText, {}};
const FilterSchritt NIEMAND{"Projekt", "P1", CodeText, {}};

TEST_F(FilterRunTest, StepsNarrowTogetherAndTheStatusConditionStandsBeforeThem)
{
    haken({1, 3});
    schritte({MEIER, WELLE, {"Erstellt", "04.11.26", CodeErstellt + 1, {}}});
    EXPECT_TRUE(ApplyPropertyFilter(kontext_));
    EXPECT_EQ(gezeigt(), "B");
    EXPECT_EQ(tabelle().filterText(),
              " ( Status >= 1  AND Status <= 3) AND Autor Like 'meier' AND Titel Like 'Welle*' AND "
              "Erstellt >= #04/11/26 00:00:00# AND Erstellt <= #04/11/26 23:59:59#");
    EXPECT_EQ(zustand().FilterString, "Autor Like 'meier' AND Titel Like 'Welle*' AND "
                                      "Erstellt >= #11/04/26 00:00:00# AND Erstellt <= #11/04/26 23:59:59#");
}

TEST_F(FilterRunTest, AStatusStepAppliesNothing)
{
    schritte({{"Status", "3", CodeStatus, {}}, MEIER, {"Status", "1", CodeStatus + 2, {}}});
    EXPECT_TRUE(ApplyPropertyFilter(kontext_));
    EXPECT_EQ(gezeigt(), "A B C D");
    EXPECT_EQ(zustand().FilterString, "Autor Like 'meier'");
}

TEST_F(FilterRunTest, StepsThatLeaveNothingAreTakenBackOneByOne)
{
    erwarteLeer("Filter 4:\nEs gibt keine Datensätze mit diesen Filtervorgaben!\n"
                "Es wird das Ergebnis bis Filter 3 angezeigt.\n");
    erwarteLeer("Filter 3:\nEs gibt keine Datensätze mit diesen Filtervorgaben!\n"
                "Es wird das Ergebnis bis Filter 2 angezeigt.\n");
    schritte({MEIER, WELLE, NIEMAND, MEIER});
    FilterEigenMerkBenutzDef(kontext_);
    EXPECT_EQ(gezeigt(), "A B");
    EXPECT_EQ(zustand().FilterAnzahl, 2);
    EXPECT_EQ(zustand().FilterString, "Autor Like 'meier' AND Titel Like 'Welle*'");
}

TEST_F(FilterRunTest, TheFirstOfSeveralStepsStaysThoughItLeavesNothing)
{
    haken({2});
    erwarteLeer("Filter 2:\nEs gibt keine Datensätze mit diesen Filtervorgaben\nunter Berücksichtigung der "
                "Status-Werte!\nEs wird das Ergebnis bis Filter 1 angezeigt.\n");
    erwarteLeer("Es gibt keine Datensätze mit diesen Filtervorgaben!\nunter Berücksichtigung der Status-Werte!\n\n");
    schritte({NIEMAND, WELLE});
    FilterEigenMerkBenutzDef(kontext_);
    EXPECT_EQ(gezeigt(), "");
    EXPECT_EQ(zustand().FilterAnzahl, 1);
}

TEST_F(FilterRunTest, ASingleStepMayLeaveAnEmptyTable)
{
    schritte({NIEMAND});
    EXPECT_TRUE(ApplyPropertyFilter(kontext_));
    EXPECT_EQ(gezeigt(), "");
    EXPECT_EQ(zustand().FilterAnzahl, 1);
    haken({0, 1});
    schritte({});
    EXPECT_TRUE(ApplyPropertyFilter(kontext_));
    EXPECT_EQ(gezeigt(), "A B E");
    EXPECT_EQ(zustand().FilterString, "");
}

TEST_F(FilterRunTest, ARefusedStepLocksTheRunUntilTheReset)
{
    schritte({MEIER});
    ASSERT_TRUE(ApplyPropertyFilter(kontext_));
    for (int i = 0; i < 5; ++i) {
        AddFilterStep(kontext_, "Welle*", "Titel", 0);
        if (i == 3)
            welt_.meldungen.erwarte("Anzahl Filter", "Alle Filter sind gefüllt!");
    }
    EXPECT_EQ(zustand().FilterAnzahl, ALLE_GEFUELLT);
    EXPECT_EQ(kontext_.FilterWerteTabelle().size(), 5U);
    EXPECT_FALSE(ApplyPropertyFilter(kontext_));
    EXPECT_FALSE(ApplyStructureFilter(kontext_));
    EXPECT_EQ(gezeigt(), "A B C D");
    EXPECT_EQ(zustand().FilterString, "Autor Like 'meier'");
    EXPECT_EQ(forgetFilter(filter_, 0).StatusFilter, "");
    EXPECT_EQ(zustand().FilterAnzahl, 0);
}

TEST_F(FilterRunTest, TheStructureAllowsSevenStepsAndHeedsNoStatusCondition)
{
    haken({0});
    kontext_.zustand().bereich = Filterbereich::Struktur;
    for (const char* wert : {"W", "*", "*", "*", "*", "Welle 1", "Welle*"})
        AddFilterStep(kontext_, wert, *wert == 'W' && wert[1] ? "Hauptmerkmal_D" : "Hauptmerkmal_C", 0);
    EXPECT_EQ(kontext_.FilterWerteTabelle().size(), 7U);
    EXPECT_TRUE(ApplyStructureFilter(kontext_));
    EXPECT_EQ(gezeigt(), "A E");
    welt_.meldungen.erwarte("Anzahl Filter", "Alle Filter sind gefüllt!");
    AddFilterStep(kontext_, "W", "Hauptmerkmal_C", 0);
    EXPECT_EQ(zustand().FilterAnzahl, ALLE_GEFUELLT);
}

TEST_F(FilterRunTest, MainValuesNarrowTheRowsAndLeaveTheFilterStringAlone)
{
    kontext_.zustand().bereich = Filterbereich::Struktur;
    zustand().HauptwertBereich[1] = {Decimal::ofUnits(15000), Decimal::ofUnits(20000)};
    ASSERT_TRUE(ApplyStructureFilter(kontext_) && ApplyHauptwertFilter(kontext_));
    EXPECT_EQ(tabelle().filterText(), "Hauptwert_b >= 1.5 AND Hauptwert_b <= 2");
    EXPECT_EQ(gezeigt(), "A H");
    schritte({{"Hauptmerkmal_D", "Welle*", CodeText, {}}});
    ASSERT_TRUE(ApplyStructureFilter(kontext_) && ApplyHauptwertFilter(kontext_));
    EXPECT_EQ(gezeigt(), "A");
    EXPECT_EQ(zustand().FilterString, "Hauptmerkmal_D Like 'Welle*'");
}

// A stored number is met as the four places say, wherever binary arithmetic has left it.
TEST_F(FilterRunTest, MainValuesAreComparedInFourPlaces)
{
    kontext_.zustand().bereich = Filterbereich::Struktur;
    const struct
    {
        const char* name;
        Value stored;
    } documents[] = {{"N1", 0.8}, {"N2", 0.1 + 0.7}, {"N3", 0.8F + 0.0}, {"N4", 0.8001}, {"N5", 0.59995},
                     {"N6", 0.6}, {"N7", 1.1 - 0.5}, {"N8", 0.5999},     {"N9", Value{}}};
    for (const auto& document : documents)
        dokument(document.name, {{"Hauptwert_a", document.stored}});
    neuOeffnen();
    zustand().HauptwertBereich[0] = {Decimal::ofUnits(6000), Decimal::ofUnits(8000)};
    ASSERT_TRUE(ApplyStructureFilter(kontext_) && ApplyHauptwertFilter(kontext_));
    EXPECT_EQ(tabelle().filterText(), "Hauptwert_a >= 0.6 AND Hauptwert_a <= 0.8");
    EXPECT_EQ(gezeigt(), "N1 N2 N3 N5 N6 N7");
}

TEST_F(FilterRunTest, AFaultOrGivingUpLeavesRowsAndFilterAsTheyWere)
{
    haken({0, 1, 2});
    schritte({MEIER});
    ASSERT_TRUE(ApplyPropertyFilter(kontext_));
    tabelle().MoveLast();
    const std::string ausdruck = tabelle().filterText();
    const auto bleibt = [&](const char* lauf) {
        EXPECT_EQ(gezeigt(), "A B C") << lauf;
        EXPECT_EQ(tabelle().filterText(), ausdruck) << lauf;
        EXPECT_EQ(tabelle().Text("DokuBez"), "C") << lauf;
        EXPECT_EQ(zustand().FilterString, "Autor Like 'meier'") << lauf;
        EXPECT_EQ(zustand().FilterAnzahl, 2) << lauf;
    };
    schritte({MEIER, {"Gibtesnicht", "1", CodeText, {}}});
    EXPECT_THROW(ApplyPropertyFilter(kontext_), Laufzeitfehler);
    bleibt("unknown field");
    EXPECT_THROW(ApplyStructureFilter(kontext_), Laufzeitfehler);
    bleibt("unknown field on the structure tab");
    schritte({{"Autor Like 'x' OR Status", "3", CodeText, {}}, WELLE});
    EXPECT_THROW(ApplyPropertyFilter(kontext_), Laufzeitfehler);
    bleibt("a condition as a field");

    welt_.fortschritt.geduld = false;
    schritte({MEIER, {"Thema", "x", CodeText, {}}});
    EXPECT_FALSE(ApplyPropertyFilter(kontext_));
    bleibt("given up");
    EXPECT_FALSE(ApplyStructureFilter(kontext_));
    bleibt("given up on the structure tab");
}

TEST_F(FilterRunTest, AStepThatIsNoDateHasABoxOfItsOwn)
{
    schritte({MEIER, {"Erstellt", "gestern", CodeErstellt, {}}});
    welt_.meldungen.erwarte("Erstellen Filterstring", "Fehler beim Erstellen Filterstring!");
    welt_.meldungen.antworte();
    EXPECT_FALSE(ApplyPropertyFilter(kontext_));
    EXPECT_EQ(gezeigt(), "A B C D E F G H");
}

} // namespace
} // namespace quelvarn
