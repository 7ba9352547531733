#include "base/text.h"
#include "filter/filter_fixture.h"
#include "filter/property_section.h"

#include <functional>

using namespace quelvarn;

namespace {

class Properties : public FilterTest
{
protected:
    std::string list(int index) const { return join(section_.list(index).values, "|"); }
    std::string statuses() const
    {
        std::string text;
        for (int status = 0; status < STATUS_COUNT; ++status)
            text += section_.statusExists(status) ? static_cast<char>('0' + status) : '-';
        return text;
    }
    void tick(std::string_view statuses)
    {
        for (int status = 0; status < STATUS_COUNT; ++status)
            section_.statusChosen(status, statuses.find(static_cast<char>('0' + status)) != statuses.npos);
    }

    PropertySection section_{context_};
};

} // namespace

TEST_F(Properties, ListsHoldWhatOccursAndCountIt)
{
    struct TestCase
    {
        const char* column;
        int index;
        std::vector<Value> cells;
        const char* list;
        const char* count;
    };
    const Value NULL_VALUE{};
    const std::vector<TestCase> cases{
        {"Projekt", 1, {"B", "a", "Ä", "A1", "a"}, "a|Ä|A1|B", "4"},
        {"Titel", 2, {"Welle", "welle  ", "WELLE"}, "Welle", "1"},
        {"Thema", 3, {" ", " "}, "", "0"},
        {"Firma", 4, {"   ", ""}, "", "0"},
        {"Material", 6, {NULL_VALUE, "", "St 37", NULL_VALUE}, "St 37", "1"},
        {"Hauptmerkmal_A", 10, {" ", " ", ""}, " ", "0"},
        {"Hauptmerkmal_B", 11, {" ", "x"}, " |x", "2"},
        {"Stichwoerter", 12, {"O'Brien", "a' AND Status = '1"}, "a' AND Status = '1|O'Brien", "2"},
    };
    for (const TestCase& testCase : cases)
        for (std::size_t i = 0; i < testCase.cells.size(); ++i)
            addDocument(testCase.column + std::to_string(i), {{testCase.column, testCase.cells[i]}});
    section_.FilterEigenNeu();
    for (const TestCase& testCase : cases) {
        EXPECT_EQ(list(testCase.index), testCase.list) << testCase.column;
        EXPECT_EQ(section_.list(testCase.index).count, testCase.count) << testCase.column;
    }
    EXPECT_EQ(section_.list(5).count, "0") << "a column without values";
}

TEST_F(Properties, RunningFilterAndStatusNarrowTheLists)
{
    addDocument("1", {{"Projekt", "A100"}, {"Autor", "Meier"}, {"Status", 0}});
    addDocument("2", {{"Projekt", "A100"}, {"Autor", "Ober"}, {"Status", 3}});
    addDocument("3", {{"Projekt", "A200"}, {"Autor", "Ulm"}, {"Status", 4}});
    addDocument("4", {{"Projekt", "B"}, {"Status", 7}, {"Geaendert", DateTime::from({2026, 11, 3})}});
    table().Filter("DokuBez = '1'");

    struct TestCase
    {
        const char* FilterString;
        const char* statuses;
        const char* projects;
        const char* authors;
        const char* exists;
    };
    const TestCase cases[]{
        {"", "012345", "A100|A200|B", "Meier|Ober|Ulm", "0--34-"},
        {"Projekt Like 'A*'", "012345", "A100|A200", "Meier|Ober|Ulm", "0--34-"},
        {"Projekt Like 'a100'", "012345", "A100", "Meier|Ober", "0--3--"},
        {"Projekt Like 'A*'", "45", "A200", "Ulm", "0--34-"},
        {"", "45", "A200", "Ulm", "0--34-"},
        {"Geaendert >= #11/03/26 00:00:00#", "012345", "B", "", "------"},
        {"Projekt Like 'nichts'", "012345", "", "", "------"},
    };
    for (const TestCase& testCase : cases) {
        tick(testCase.statuses);
        section_.FilterListenSchmal(testCase.FilterString);
        EXPECT_EQ(list(1), testCase.projects) << testCase.FilterString << testCase.statuses;
        EXPECT_EQ(list(7), testCase.authors) << testCase.FilterString << testCase.statuses;
        EXPECT_EQ(statuses(), testCase.exists) << testCase.FilterString << testCase.statuses;
    }
    EXPECT_EQ(shown(), "1") << "the table's own filter stays";
}

TEST_F(Properties, ChoicesBecomeSteps)
{
    struct TestCase
    {
        std::function<void(PropertySection&)> choice;
        FilterStep step;
        FilterRow row;
    };
    session_.labels.Bezeichnungen = {{"projekt", "Vorhaben"}, {"stichwörter", "Worte"}, {"hauptmerkmal a", "Klasse"}};
    const DateTime day = DateTime::from({2026, 11, 5});
    const TestCase cases[]{
        {[](auto& b) { b.valueChosen(1, "A100"); }, {"Projekt", "A100", 0, ""}, {"Projekt", "Vorhaben", "A100"}},
        {[](auto& b) { b.valueChosen(10, "x"); }, {"Hauptmerkmal_A", "x", 0, ""}, {"Hauptmerkmal_A", "Klasse", "x"}},
        {[](auto& b) { b.valueChosen(12, "y"); }, {"Stichwoerter", "y", 0, ""}, {"Stichwoerter", "Worte", "y"}},
        {[&](auto& b) { b.dateChosen(day); },
         {"Erstellt", "05.11.26", 20, ""},
         {"Kalender", "Erstellt", ">= 05.11.26"}},
        {[&](auto& b) {
             b.setDateField(1);
             b.setBound(2);
             b.dateChosen(day);
         },
         {"Geaendert", "05.11.26", 32, ""},
         {"Kalender", "Geaendert", "<= 05.11.26"}},
    };
    std::size_t number = 0;
    section_.valueChosen(1, "");
    for (const TestCase& testCase : cases) {
        testCase.choice(section_);
        FilterStep step = context_.state().FilterSchritte[number++];
        step.row = {};
        EXPECT_EQ(step, testCase.step);
        ASSERT_EQ(context_.FilterWerteTabelle().size(), number);
        EXPECT_EQ(context_.FilterWerteTabelle().back(), testCase.row);
    }
    world_.boxes.expect("Anzahl Filter", "Alle Filter sind gefüllt!");
    section_.valueChosen(1, "A100");
    EXPECT_EQ(context_.FilterWerteTabelle().size(), number);
}

TEST_F(Properties, ReadingGivenUpLeavesEmptyListsAndAUsablePage)
{
    addDocument("1", {{"Projekt", "A100"}});
    addDocument("2");
    world_.progress.patience = false;
    section_.FilterEigenNeu();
    EXPECT_TRUE(section_.list(1).values.empty());
    EXPECT_TRUE(section_.statusExists(5));
    EXPECT_EQ(world_.progress.ended, 1);
    EXPECT_EQ(shown(), "1 2");
}

TEST_F(Properties, AListThatCannotBeFilledLeavesTheOthers)
{
    engine_->removeTable("PartTabelle");
    engine_->createTable({"PartTabelle",
                          {{"DokuBez", FieldType::Text},
                           {"RevBez", FieldType::Text},
                           {"Status", FieldType::Integer},
                           {"Projekt", FieldType::Text},
                           {"Autor", FieldType::Text}},
                          {}});
    addDocument("1", {{"Projekt", "A100"}, {"Autor", "Meier"}});
    EXPECT_THROW(section_.FilterEigenNeu(), RuntimeError);
    EXPECT_EQ(list(1), "A100");
    EXPECT_EQ(list(7), "Meier");
    EXPECT_EQ(section_.list(6).count, "");
}
