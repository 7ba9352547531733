#include "filter/filter_page.h"
#include "filter/lift_filter.h"
#include "filter_fixture.h"
#include "session/error_report.h"

namespace quelvarn {
namespace {

class FilterPageTest : public FilterTest
{
protected:
    FilterPageTest()
    {
        for (TypeFilter& type : filter_.types)
            type.ChFilterStat.fill(false);
        for (Recordset& list : session_.pages.GespeicherteFilter) {
            list.appendField("Filtername", FieldType::Text);
            list.appendField("Filterstring", FieldType::Text);
            list.Open();
        }
        addDocument("A", {{"Projekt", "P1"}, {"Autor", "Meier"}});
        addDocument("B", {{"Projekt", "P1"}, {"Autor", "Schulz"}});
        addDocument("C", {{"Projekt", "P2"}, {"Autor", "Schulz"}, {"Status", 1}});
        page_.toDocumentPage = [this] { ++leave_; };
    }

    static constexpr int PROJECT = 1, AUTHOR = 7;

    void choose(int index, const std::string& value) { page_.properties().valueChosen(index, value); }
    int count(int tab = 0) { return filter_.types[static_cast<std::size_t>(tab)].FilterAnzahl; }

    // The values of the rows collected, "P1|Meier".
    std::string values() const
    {
        std::string text;
        for (const FilterRow& row : page_.context().FilterWerteTabelle())
            text += (text.empty() ? "" : "|") + row.value;
        return text;
    }
    std::string authors() { return join(page_.properties().list(AUTHOR).values, "|"); }

    static std::string join(const std::vector<std::string>& parts, const char* between)
    {
        std::string text;
        for (const auto& part : parts)
            text += (text.empty() ? "" : between) + part;
        return text;
    }

    void expectAllFilled() { world_.boxes.expect("Anzahl Filter", "Alle Filter sind gefüllt!"); }

    FilterPage page_{session_, operations_, filter_, tables_};
    int leave_ = 0;
};

TEST_F(FilterPageTest, NamesTheTypeAndTheRights)
{
    const std::array<const char*, DOCUMENT_TYPE_COUNT> names{"Bauteile",       "Blechteile",    "Baugruppe",
                                                             "Zeichnung",      "Schweißteile",  "Normteile",
                                                             "Sondertabelle2", "Sondertabelle3"};
    session_.labels.SondertabelleName[0] = "Normteile";
    for (int tab = 0; tab < DOCUMENT_TYPE_COUNT; ++tab) {
        tables_.bringToFront(tab);
        page_.OpenFilterPage();
        EXPECT_EQ(page_.title(),
                  std::string("    Solid Edge - Filterwerte für ") + names[static_cast<std::size_t>(tab)]);
    }
    EXPECT_EQ(page_.accessDateText(), "Zugriffsberechtigung:             Alle Stati von 0 bis 5");
    seesStatuses("3");
    EXPECT_EQ(page_.accessDateText(), "Berechtigung: 3=Freigegeben;");
    seesStatuses("015");
    EXPECT_EQ(page_.accessDateText(), "Berechtigung: 0=Verfügbar; 1=In Arbeit; 5=Ungültig;");
}

TEST_F(FilterPageTest, FilteringNarrowsTableAndLists)
{
    page_.OpenFilterPage();
    EXPECT_EQ(authors(), "Meier|Schulz");
    choose(PROJECT, "P2");
    EXPECT_EQ(shown(), "A B C") << "nothing runs before <Filtern>";
    page_.filter();
    EXPECT_EQ(shown(), "C");
    EXPECT_EQ(authors(), "Schulz");
}

TEST_F(FilterPageTest, AFilterStaysWithItsTypeAndIsNarrowedFurther)
{
    page_.OpenFilterPage();
    choose(PROJECT, "P1");
    page_.filter();
    page_.leave();
    EXPECT_EQ(leave_, 1);
    EXPECT_EQ(shown(), "A B") << "the table stays filtered";

    tables_.bringToFront(3);
    page_.OpenFilterPage();
    EXPECT_EQ(values(), "");
    tables_.bringToFront(0);
    page_.OpenFilterPage();
    EXPECT_EQ(values(), "P1");
    choose(AUTHOR, "Schulz");
    page_.filter();
    EXPECT_EQ(shown(), "B");

    forgetFilter(filter_, 0); // The document page lifted it.
    page_.OpenFilterPage();
    EXPECT_EQ(values(), "");
}

TEST_F(FilterPageTest, AQuickFilterOfTheTableIsLifted)
{
    tables_.opened(0).rows().Filter("DokuBez Like 'A*'");
    tables_[0].showFiltered({{}, {}, "Dokumentname A*"});
    page_.OpenFilterPage();
    EXPECT_EQ(shown(), "A B C");
}

TEST_F(FilterPageTest, AStepThatLeavesNothingGoesWithItsRow)
{
    page_.OpenFilterPage();
    choose(PROJECT, "P2");
    choose(AUTHOR, "Meier");
    world_.boxes.answer();
    page_.filter();
    EXPECT_EQ(shown(), "C");
    EXPECT_EQ(values(), "P2");
    EXPECT_EQ(world_.boxes.last().title, "Filtervorgaben");
}

TEST_F(FilterPageTest, ThePartsDoNotMix)
{
    page_.OpenFilterPage();
    choose(PROJECT, "P1");
    page_.filter();
    const unsigned lists = page_.listGeneration();
    page_.sectionChosen(FilterSection::Structure);
    EXPECT_EQ(count(), 0);
    EXPECT_EQ(values(), "");
    EXPECT_EQ(shown(), "A B") << "until the next run";
    EXPECT_EQ(page_.headingFilterValues(), "      Filterwerte");
    page_.sectionChosen(FilterSection::UserDefined);
    EXPECT_EQ(page_.headingFilterValues(), "      Filterwerte ( * am Anfang u. Ende/oder nur am Ende)");
    page_.sectionChosen(FilterSection::Properties);
    EXPECT_EQ(authors(), "Meier|Schulz") << "all lists again";
    EXPECT_GT(page_.listGeneration(), lists);
}

TEST_F(FilterPageTest, BackGoesToTheStateOfTheOpening)
{
    page_.OpenFilterPage();
    choose(PROJECT, "P1");
    page_.filter();
    page_.OpenFilterPage();
    choose(AUTHOR, "Schulz");
    page_.filter();
    page_.back();
    EXPECT_EQ(values(), "P1");
    EXPECT_EQ(authors(), "Meier|Schulz");
    page_.filter();
    EXPECT_EQ(shown(), "A B");

    page_.sectionChosen(FilterSection::Structure);
    page_.sectionChosen(FilterSection::Properties);
    page_.back();
    EXPECT_EQ(values(), "P1");
}

TEST_F(FilterPageTest, NobodyIsLockedByFilledSteps)
{
    page_.OpenFilterPage();
    for (int i = 0; i < 5; ++i)
        choose(PROJECT, "P1");
    expectAllFilled();
    choose(AUTHOR, "Meier");
    EXPECT_EQ(values(), "P1|P1|P1|P1|P1");
    page_.filter();
    EXPECT_EQ(shown(), "A B C") << "applies nothing";

    page_.OpenFilterPage(); // Left and opened again.
    page_.back();
    EXPECT_EQ(count(), 5);
    page_.filter();
    EXPECT_EQ(shown(), "A B");
}

TEST_F(FilterPageTest, SavedFiltersAreUsedAndWrittenOnLeaving)
{
    page_.OpenFilterPage();
    world_.boxes.expect("Filterwerte", "Es sind keine Filterwerte eingetragen!");
    EXPECT_FALSE(page_.saveCurrentFilter("Leer"));
    choose(PROJECT, "P1");
    page_.properties().statusChosen(3, true);
    EXPECT_TRUE(page_.saveCurrentFilter("Projekt 1"));
    page_.leave();
    Recordset rows;
    rows.Open("SELECT Feld3, Feld4 FROM Ini WHERE Feld1 = 'Mueller' AND Feld2 = 'Filterwerte'",
              session_.database.connection);
    ASSERT_EQ(rows.RecordCount(), 1U);
    EXPECT_EQ(rows.Text("Feld3") + " " + rows.Text("Feld4"), "Part Projekt 1");

    forgetFilter(filter_, 0);
    page_.OpenFilterPage();
    page_.sectionChosen(FilterSection::Structure);
    page_.applySavedFilter("Projekt 1");
    EXPECT_EQ(page_.context().section(), FilterSection::Properties);
    EXPECT_EQ(values(), "P1");
    EXPECT_EQ(filter_.status.shortText, " = 3");
    EXPECT_EQ(shown(), "A B C") << "it runs with <Filtern>";

    page_.deleteSavedFilter("Projekt 1");
    EXPECT_TRUE(page_.savedFilter().empty());
    world_.boxes.expect("Filterwerte", "Es ist kein Filterwert ausgewählt!");
    page_.applySavedFilter("");
}

TEST_F(FilterPageTest, AFavouriteRunsAtOnce)
{
    page_.OpenFilterPage();
    choose(PROJECT, "P2");
    page_.saveCurrentFilter("Projekt 2");
    page_.back();
    page_.useSaved("Projekt 2");
    EXPECT_EQ(shown(), "C");
    page_.OpenFilterPage();
    EXPECT_EQ(values(), "P2");
    page_.useSaved("Gibt es nicht");
    EXPECT_EQ(shown(), "C");
}

TEST_F(FilterPageTest, EditedValuesCount)
{
    page_.OpenFilterPage();
    choose(AUTHOR, "Schulz");
    for (const auto& [input, rest] :
         std::vector<std::pair<const char*, const char*>>{{"Meier", "A"}, {"*ei", "A"}, {"S*", "B C"}}) {
        page_.valueChanged(0, input);
        page_.starsComplete();
        page_.filter();
        EXPECT_EQ(shown(), rest) << input;
    }
}

TEST_F(FilterPageTest, TheTemplateIsADrawing)
{
    const auto box = [](const std::string& documentPath) {
        return "Die Datei:\n\n" + documentPath +
               "\n\nkonnte nicht geöffnet werden!\n\nMögliche Ursache:\n- Kein Zugriffsrecht.\n"
               "- Falscher Pfad- und/oder Dateiname.";
    };
    std::string shown = "?";
    page_.viewer = [&](const std::string& filename) {
        shown = filename;
        return filename != "W:\\Kaputt.dft";
    };
    struct TestCase
    {
        const char* feature;
        std::string drawingTemplate;
        bool shown;
    };
    for (const TestCase& testCase : {TestCase{"Welle", "W:\\Welle.DFT", true}, TestCase{"Rad", "W:\\Rad.par", false},
                                     TestCase{"Kette", "W:\\Kaputt.dft", false}}) {
        addDocument("V", {{"Hauptmerkmal_C", std::string(testCase.feature)}});
        row("DraftTabelle", {{"DokuBez", "V"},
                             {"RevBez", "0"},
                             {"Kategorie", "QV_Vorlage"},
                             {"Hauptmerkmal_C", std::string(testCase.feature)},
                             {"Hauptmerkmal_D", ""},
                             {"filename", testCase.drawingTemplate}});
        reopen();
        page_.OpenFilterPage();
        page_.sectionChosen(FilterSection::Structure);
        page_.back();
        page_.structure().nodeChosen({testCase.feature});
        ASSERT_EQ(page_.structure().drawingTemplate(), testCase.drawingTemplate);
        if (!testCase.shown)
            world_.boxes.expect("Anzeigen im Viewer", box(testCase.drawingTemplate));
        page_.drawingTemplate(true);
        EXPECT_EQ(page_.showsTemplate(), testCase.shown);
        page_.drawingTemplate(false);
        EXPECT_FALSE(page_.showsTemplate());
        EXPECT_EQ(shown, testCase.shown ? "" : shown) << "the viewer is cleared";
    }
}

TEST_F(FilterPageTest, AnotherDatabaseForgetsEverything)
{
    page_.OpenFilterPage();
    choose(PROJECT, "P1");
    page_.properties().statusChosen(3, true);
    page_.databaseChanges();
    EXPECT_EQ(count(), 0);
    EXPECT_EQ(values(), "");
    EXPECT_EQ(filter_.status.StatusFilter, "");
    EXPECT_FALSE(session_.pages.FormSEFilternGeladen);
    page_.unload(); // Not loaded since: writes nothing to the new database.
}

} // namespace
} // namespace quelvarn
