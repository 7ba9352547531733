#include "filter/status_filter.h"
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
    void document(const char* name, const char* file, int status, CalendarTime made, const char* author,
                  const char* editor)
    {
        const DateTime created = DateTime::from(made);
        row("PartTabelle", {{"DokuBez", name},
                            {"RevBez", "0"},
                            {"Dateiname", file},
                            {"filename", documentPath(file)},
                            {"Status", status},
                            {"Erstellt", created},
                            {"Geaendert", created.plusDays(3)},
                            {"Autor", author},
                            {"Bearbeiter", editor}});
    }

    void filterText(const char* text, std::size_t field, SearchMethod place)
    {
        search_.setSearchText(text);
        search_.setField(field);
        search_.setMethod(place);
        quick_.textFilter();
    }

    const std::string& expression() const { return tables_.current().rows().filter().text; }
};

TEST_F(QuickFilterTest, AListOfSavedFiltersThatCannotBeReadHasItsBoxes)
{
    session_.pages.GespeicherteFilter[0].appendField("Name", FieldType::Text); // As of another version.
    session_.pages.GespeicherteFilter[0].Open();
    session_.pages.GespeicherteFilter[0].AddNew();
    session_.pages.GespeicherteFilter[0].Update();
    world_.boxes.expect("Liste mit Filterfavoriten", "Fehler beim Erstellen der Liste mit Filterfavoriten!");
    world_.boxes.answer();
    EXPECT_FALSE(bar_.showFavourites());
    world_.boxes.expect("Gespeicherte Filter", "Fehler beim Eintrag der gespeicherten Filter!");
    world_.boxes.answer();
    EXPECT_TRUE(bar_.favouriteNames().empty());
}

TEST_F(QuickFilterTest, TextNarrowsInTwoStepsAndNoMore)
{
    filterText("", 0, TextAtBegin);
    EXPECT_EQ(tables_[0].state(), TableState::Open);

    filterText("fa", 0, TextAtBegin);
    EXPECT_EQ(expression(), "DokuBez Like 'fa*'");
    EXPECT_EQ(list(), "FA-100/0 FA-200/0 ");
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4; Filteranzahl: 2");
    EXPECT_EQ(quick_.LblFilterStep1(), "2-te Filterung?");
    EXPECT_TRUE(heading_.showsFilterButton());

    filterText("LL", 1, TextAny);
    EXPECT_EQ(expression(), "DokuBez Like 'fa*' AND Dateiname Like '*LL*'");
    EXPECT_EQ(filter_.types[0].QuickFilter, expression());
    EXPECT_EQ(quick_.LblFilterStep1(), "2-ter Schritt der Filterung.");
    EXPECT_EQ(rows(), "DokubezDateiFile|Dokumentname|fa*\nDokubezDateiFile|Dateiname|*LL*\n");

    const std::string before = expression();
    world_.boxes.expect("Filterung Text", "Es sind nur maximal 2 Zeichenfolgen möglich!");
    filterText("W", 2, TextAtBegin);
    EXPECT_EQ(expression(), before);
    EXPECT_EQ(quick_.step(), 2);
    EXPECT_EQ(session_.pages.SearchTexts, (std::vector<std::string>{"fa", "LL", "W"}));

    tabs_.back();
    EXPECT_EQ(tables_[0].state(), TableState::Open);
    EXPECT_EQ(quick_.step(), 0);
    EXPECT_EQ(rows(), "");
    EXPECT_EQ(filter_.types[0].QuickFilter, "");
    filterText("gibt es nicht", 0, TextAny);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4; Filteranzahl: 0");
}

TEST_F(QuickFilterTest, ATabKeepsItsFilterButNotTheRunningStep)
{
    addDocument(1, "Blech");
    filterText("FA", 0, TextAtBegin);
    tabs_.chooseTab(1);
    EXPECT_EQ(quick_.LblFilterStep1(), "");
    EXPECT_EQ(rows(), "");
    tabs_.chooseTab(0);
    EXPECT_EQ(rows(), "DokubezDateiFile|Dokumentname|FA*\n");
    EXPECT_EQ(quick_.step(), 0);
    filterText("FB", 0, TextAtBegin); // A first step again.
    EXPECT_EQ(list(), "FB-100/0 FB-200/0 ");
    tabs_.rebuild();
    EXPECT_EQ(quick_.step(), 0);
    filterText("FA", 0, TextAtBegin);
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
        quick_.setDateField(c.field);
        quick_.setOwnOnly(c.own);
        if (c.days > 0) {
            quick_.setDays(c.days);
            quick_.lastDays();
        } else {
            quick_.today();
        }
        EXPECT_EQ(list(), c.list);
        EXPECT_EQ(quick_.LblZeitRaum(), c.span);
        EXPECT_EQ(filter_.types[0].QuickFilter, c.sql);
    }
    EXPECT_EQ(rows(), "FilternDatum|Geaendert|31.01.04\nFilternDatum|Bearbeiter|Mueller\n");
    tabs_.back();
    EXPECT_EQ(quick_.LblZeitRaum(), "");
}

TEST_F(QuickFilterTest, TheStatusConditionStaysAndFiltersTakeTurns)
{
    filter_.types[0].ChFilterStat = {false, true, true, true, false, false};
    BuildStatusFilter(filter_, 0);
    filterText("00", 0, TextAny);
    EXPECT_EQ(list(), "FA-100/0 FA-200/0 FB-100/0 ");
    quick_.today();
    EXPECT_EQ(expression(), " ( Status >= 1  AND Status <= 3) AND Erstellt >= #01/03/04 00:00:00#");
    EXPECT_EQ(quick_.step(), 0);
    filterText("FB", 0, TextAtBegin);
    EXPECT_EQ(list(), "FB-100/0 ");
    EXPECT_EQ(quick_.LblZeitRaum(), "");
    tabs_.back();
    EXPECT_EQ(list(), "FA-100/0 FA-200/0 FB-100/0 ");
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
        filterText("FA", 0, TextAtBegin);
        world_.boxes.expect("Filtervorgaben", NOTHING_LEFT);
        unsigned drawn = 0;
        world_.boxes.during = [&] {
            EXPECT_EQ(list(), "FA-100/0 FA-200/0 ") << "behind the box";
            drawn = tables_.current().generation();
        };
        filterText(text, 1, TextAtBegin);
        world_.boxes.during = nullptr;
        EXPECT_EQ(tables_.current().generation(), drawn) << "the grid knew of these rows already";
        EXPECT_EQ(list(), "FA-100/0 FA-200/0 ");
        EXPECT_EQ(quick_.LblFilterStep1(), "2-te Filterung?");
        EXPECT_EQ(rows(), "DokubezDateiFile|Dokumentname|FA*\n");
        EXPECT_EQ(filter_.types[0].QuickFilter, "DokuBez Like 'FA*'");
        filterText("w", 1, TextAtBegin);
        EXPECT_EQ(quick_.step(), 2);
        EXPECT_EQ(list(), "FA-100/0 FA-200/0 ");
        tabs_.back();
    }
}

TEST_F(QuickFilterTest, PanelsAndFavouritesOfTheBar)
{
    bar_.showValues(true);
    EXPECT_EQ(bar_.valuesButton(), "Ausblenden der Filterwerte <<");
    bar_.showSearch(true);
    EXPECT_FALSE(bar_.showsValues());
    EXPECT_EQ(bar_.valuesButton(), "Anzeigen der Filterwerte >>");
    bar_.showValues(true);
    tabs_.chooseTab(1);
    EXPECT_FALSE(bar_.showsValues());
    EXPECT_TRUE(bar_.showsSearch());

    world_.boxes.expect("Gespeicherte Filter", "Es sind keine gespeicherten Filter für Blechteile vorhanden!");
    EXPECT_FALSE(bar_.showFavourites());
    world_.boxes.expect("Filterfavoriten", "Es ist kein Filtername eingetragen!");
    bar_.useFavourite();

    bar_.chooseFavourite("Neue Bleche"); // Gone by now: nothing runs.
    bar_.useFavourite();
    EXPECT_EQ(tables_.current().state(), TableState::Empty);
    tabs_.chooseTab(0);
    EXPECT_EQ(bar_.LblFilter(), "");
}

} // namespace
} // namespace quelvarn
