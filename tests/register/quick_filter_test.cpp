#include "quick_fixture.h"

namespace quelvarn {
namespace {

class QuickFilterTest : public QuickTest
{
protected:
    QuickFilterTest()
    {
        document("FA-100", "welle.par", 1, {2004, 3, 1, 7, 0, 0}, "Mueller", "Kern");
        document("FA-200", "welle.par", 3, {2004, 2, 27, 12, 0, 0}, "Kern", "Mueller");
        document("FB-100", "bolzen.par", 3, {2004, 2, 20, 0, 0, 0}, "Mueller", "Mueller");
        document("FB-200", "welle.par", 5, {2003, 3, 1, 0, 0, 0}, "Kern", "Kern");
        tabs_.chooseTab(0);
    }

    // Changed a year after it was made.
    void document(const char* name, const char* file, int status, Kalenderzeit made, const char* author,
                  const char* editor)
    {
        const Zeitpunkt erstellt = Zeitpunkt::aus(made);
        zeile("PartTabelle", {{"DokuBez", name},
                              {"RevBez", "0"},
                              {"Dateiname", file},
                              {"filename", pfad(file)},
                              {"Status", status},
                              {"Erstellt", erstellt},
                              {"Geaendert", erstellt.plusTage(3)},
                              {"Autor", author},
                              {"Bearbeiter", editor}});
    }

    void filterText(const char* text, std::size_t field, Suchverfahren place)
    {
        search_.setzeSuchtext(text);
        search_.setzeFeld(field);
        search_.setzeVerfahren(place);
        quick_.textFiltern();
    }

    const std::string& expression() const { return tables_.current().rows().filterText(); }
};

TEST_F(QuickFilterTest, AListOfSavedFiltersThatCannotBeReadHasItsBoxes)
{
    session_.pages.GespeicherteFilter[0].FeldAnhaengen("Name", FeldTyp::Text); // As of another version.
    session_.pages.GespeicherteFilter[0].Open();
    session_.pages.GespeicherteFilter[0].AddNew();
    session_.pages.GespeicherteFilter[0].Update();
    welt_.meldungen.erwarte("Liste mit Filterfavoriten", "Fehler beim Erstellen der Liste mit Filterfavoriten!");
    welt_.meldungen.antworte();
    EXPECT_FALSE(bar_.zeigeFavoriten());
    welt_.meldungen.erwarte("Gespeicherte Filter", "Fehler beim Eintrag der gespeicherten Filter!");
    welt_.meldungen.antworte();
    EXPECT_TRUE(bar_.favoritennamen().empty());
}

TEST_F(QuickFilterTest, TextNarrowsInTwoStepsAndNoMore)
{
    filterText("", 0, TextAmAnfang);
    EXPECT_EQ(tables_[0].state(), TableState::Open);

    filterText("fa", 0, TextAmAnfang);
    EXPECT_EQ(expression(), "DokuBez Like 'fa*'");
    EXPECT_EQ(liste(), "FA-100/0 FA-200/0 ");
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4; Filteranzahl: 2");
    EXPECT_EQ(quick_.LblFilterStep1(), "2-te Filterung?");
    EXPECT_TRUE(heading_.showsFilterButton());

    filterText("LL", 1, TextBeliebig);
    EXPECT_EQ(expression(), "DokuBez Like 'fa*' AND Dateiname Like '*LL*'");
    EXPECT_EQ(filter_.typen[0].Schnellfilter, expression());
    EXPECT_EQ(quick_.LblFilterStep1(), "2-ter Schritt der Filterung.");
    EXPECT_EQ(rows(), "DokubezDateiFile|Dokumentname|fa*\nDokubezDateiFile|Dateiname|*LL*\n");

    const std::string before = expression();
    welt_.meldungen.erwarte("Filterung Text", "Es sind nur maximal 2 Zeichenfolgen möglich!");
    filterText("W", 2, TextAmAnfang);
    EXPECT_EQ(expression(), before);
    EXPECT_EQ(quick_.schritt(), 2);
    EXPECT_EQ(session_.pages.Suchtexte, (std::vector<std::string>{"fa", "LL", "W"}));

    tabs_.back();
    EXPECT_EQ(tables_[0].state(), TableState::Open);
    EXPECT_EQ(quick_.schritt(), 0);
    EXPECT_EQ(rows(), "");
    EXPECT_EQ(filter_.typen[0].Schnellfilter, "");
    filterText("gibt es nicht", 0, TextBeliebig);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4; Filteranzahl: 0");
}

TEST_F(QuickFilterTest, ATabKeepsItsFilterButNotTheRunningStep)
{
    dokument(1, "Blech");
    filterText("FA", 0, TextAmAnfang);
    tabs_.chooseTab(1);
    EXPECT_EQ(quick_.LblFilterStep1(), "");
    EXPECT_EQ(rows(), "");
    tabs_.chooseTab(0);
    EXPECT_EQ(rows(), "DokubezDateiFile|Dokumentname|FA*\n");
    EXPECT_EQ(quick_.schritt(), 0);
    filterText("FB", 0, TextAmAnfang); // A first step again.
    EXPECT_EQ(liste(), "FB-100/0 FB-200/0 ");
    tabs_.rebuild();
    EXPECT_EQ(quick_.schritt(), 0);
    filterText("FA", 0, TextAmAnfang);
    EXPECT_EQ(expression(), "DokuBez Like 'FA*'");
}

TEST_F(QuickFilterTest, DateFiltersTakeTheDayTheFieldAndThePerson)
{
    const struct
    {
        int field;
        bool own;
        int days; // 0: today
        const char* list;
        const char* span;
        const char* sql;
    } cases[] = {
        {0, false, 0, "FA-100/0 ", "Heute, 01.03.04", "Erstellt >= #03/01/04 00:00:00#"},
        {0, false, 10, "FA-100/0 FA-200/0 FB-100/0 ", "Seit 20.02.04", "Erstellt >= #02/20/04 00:00:00#"},
        {0, true, 10, "FA-100/0 FB-100/0 ", "Seit 20.02.04",
         "Erstellt >= #02/20/04 00:00:00# AND Autor Like 'Mueller'"},
        {1, false, 0, "FA-100/0 FA-200/0 ", "Heute, 01.03.04", "Geaendert >= #03/01/04 00:00:00#"},
        {1, true, 30, "FA-200/0 FB-100/0 ", "Seit 31.01.04",
         "Geaendert >= #01/31/04 00:00:00# AND Bearbeiter Like 'Mueller'"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.sql);
        quick_.setzeDatumsfeld(c.field);
        quick_.setzeNurEigene(c.own);
        if (c.days > 0) {
            quick_.setzeTage(c.days);
            quick_.letzteTage();
        } else {
            quick_.heute();
        }
        EXPECT_EQ(liste(), c.list);
        EXPECT_EQ(quick_.LblZeitRaum(), c.span);
        EXPECT_EQ(filter_.typen[0].Schnellfilter, c.sql);
    }
    EXPECT_EQ(rows(), "FilternDatum|Geaendert|31.01.04\nFilternDatum|Bearbeiter|Mueller\n");
    tabs_.back();
    EXPECT_EQ(quick_.LblZeitRaum(), "");
}

TEST_F(QuickFilterTest, TheStatusConditionStaysAndFiltersTakeTurns)
{
    filter_.typen[0].ChFilterStat = {false, true, true, true, false, false};
    BuildStatusFilter(filter_, 0);
    filterText("00", 0, TextBeliebig);
    EXPECT_EQ(liste(), "FA-100/0 FA-200/0 FB-100/0 ");
    quick_.heute();
    EXPECT_EQ(expression(), " ( Status >= 1  AND Status <= 3) AND Erstellt >= #01/03/04 00:00:00#");
    EXPECT_EQ(quick_.schritt(), 0);
    filterText("FB", 0, TextAmAnfang);
    EXPECT_EQ(liste(), "FB-100/0 ");
    EXPECT_EQ(quick_.LblZeitRaum(), "");
    tabs_.back();
    EXPECT_EQ(liste(), "FA-100/0 FA-200/0 FB-100/0 ");
}

constexpr const char* NOTHING_LEFT = "Filter 2:\nEs gibt keine Datensätze mit diesen Filtervorgaben!\n"
                                     "Es wird das Ergebnis bis Filter 1 angezeigt.\n"
                                     "Mögliche Ursache:\n- Sie haben keine Zugriffsberechtigung.\n"
                                     "- Es ist ein <Neuaufbau> erforderlich.";

// A text that looks like a condition is a text that nothing holds.
TEST_F(QuickFilterTest, ASecondTextThatLeavesNothingIsToldAndTheFirstOneStays)
{
    for (const char* text : {"gibt es nicht", "x' OR Status Like '", "F_", "[F]", "%"}) {
        SCOPED_TRACE(text);
        filterText("FA", 0, TextAmAnfang);
        welt_.meldungen.erwarte("Filtervorgaben", NOTHING_LEFT);
        unsigned drawn = 0;
        welt_.meldungen.during = [&] {
            EXPECT_EQ(liste(), "FA-100/0 FA-200/0 ") << "behind the box";
            drawn = tables_.current().generation();
        };
        filterText(text, 1, TextAmAnfang);
        welt_.meldungen.during = nullptr;
        EXPECT_EQ(tables_.current().generation(), drawn) << "the grid knew of these rows already";
        EXPECT_EQ(liste(), "FA-100/0 FA-200/0 ");
        EXPECT_EQ(quick_.LblFilterStep1(), "2-te Filterung?");
        EXPECT_EQ(rows(), "DokubezDateiFile|Dokumentname|FA*\n");
        EXPECT_EQ(filter_.typen[0].Schnellfilter, "DokuBez Like 'FA*'");
        filterText("w", 1, TextAmAnfang);
        EXPECT_EQ(quick_.schritt(), 2);
        EXPECT_EQ(liste(), "FA-100/0 FA-200/0 ");
        tabs_.back();
    }
}

TEST_F(QuickFilterTest, PanelsAndFavouritesOfTheBar)
{
    bar_.zeigeWerte(true);
    EXPECT_EQ(bar_.knopfWerte(), "Ausblenden der Filterwerte <<");
    bar_.zeigeSuchen(true);
    EXPECT_FALSE(bar_.zeigtWerte());
    EXPECT_EQ(bar_.knopfWerte(), "Anzeigen der Filterwerte >>");
    bar_.zeigeWerte(true);
    tabs_.chooseTab(1);
    EXPECT_FALSE(bar_.zeigtWerte());
    EXPECT_TRUE(bar_.zeigtSuchen());

    welt_.meldungen.erwarte("Gespeicherte Filter", "Es sind keine gespeicherten Filter für Blechteile vorhanden!");
    EXPECT_FALSE(bar_.zeigeFavoriten());
    welt_.meldungen.erwarte("Filterfavoriten", "Es ist kein Filtername eingetragen!");
    bar_.nutzeFavorit();

    bar_.waehleFavorit("Neue Bleche"); // Gone by now: nothing runs.
    bar_.nutzeFavorit();
    EXPECT_EQ(tables_.current().state(), TableState::Empty);
    tabs_.chooseTab(0);
    EXPECT_EQ(bar_.LblFilter(), "");
}

} // namespace
} // namespace quelvarn
