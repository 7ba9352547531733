#include "filter/filter_fixture.h"
#include "filter/run_filter.h"
#include "filter/steps.h"
#include "filter/user_defined_run.h"
#include "filter/user_defined_section.h"

#include <gmock/gmock.h>

namespace quelvarn {

namespace {

using testing::ElementsAre;

class UserDefinedTest : public FilterTest
{
protected:
    void property(const std::string& DokuBez, const std::string& Name, const Value& value, const Values& further = {})
    {
        std::vector<sql::Assignment> values{
            {"DokuBez", DokuBez}, {"RevBez", "0"}, {"Name", Name}, {"Wert", value}, {"Status", 3}};
        for (const auto& [column, value] : further) {
            std::erase_if(values, [&](const auto& alter) { return alter.column == column; });
            values.push_back({column, value});
        }
        engine_->insert(DOCUMENT_TYPES[static_cast<std::size_t>(context_.tab)].tableUserDef, values);
    }
    void property(const std::string& DokuBez, const std::string& Name, const char* value, const Values& further = {})
    {
        property(DokuBez, Name, Value(std::string(value)), further);
    }

    using Pairs = std::vector<std::pair<std::string, std::string>>;
    void set(const Pairs& pairs)
    {
        clearFilter(context_.state());
        for (const auto& [name, value] : pairs)
            context_.state().FilterSchritte[static_cast<std::size_t>(context_.state().FilterAnzahl++)] = {
                "", name, CodeText, value};
    }
    // The documents found, in their order.
    std::string finds(const Pairs& pairs)
    {
        set(pairs);
        return runs();
    }
    std::string runs()
    {
        context_.state().section = FilterSection::UserDefined;
        FilterEigenMerkBenutzDef(context_);
        EXPECT_EQ(context_.table().state(), TableState::FilterResult);
        return shown();
    }
};

TEST_F(UserDefinedTest, AValueMeetsItsPattern)
{
    const std::string longName = "W:\\Ablage\\Notizen\\2026\\Notiz_77.txt";
    ASSERT_GE(longName.size(), 32u);
    const std::string exactly32 = "W:\\123456789\\1234567890\\1234.txt";
    ASSERT_EQ(exactly32.size(), 32u);
    struct
    {
        Value value;
        const char* pattern;
        bool fits;
    } const cases[]{
        {std::string("Rot matt"), "Rot matt", true},
        {std::string("Rot matt"), "rOT MATT", true},
        {std::string("Rot matt"), "Rot", false},
        {std::string("Rot matt"), "Rot*", true},
        {std::string("Rot matt"), "*ma*", true},
        {std::string("Rot matt"), "*matt", false}, // A star in front alone is no pattern of a short value.
        {std::string("*matt"), "*matt", true},
        {std::string("Rot*"), "Rot*", true},
        {std::string("Rot matt"), "R*matt", false},
        {std::string("Größe"), "GRÖSSE", true}, // One value in the lists.
        {std::string("Rot matt  "), "rot matt", true},
        {std::string("Größe"), "GRÖSSE*", false}, // In a pattern "ß" is a letter of its own.
        {std::string("50% [a_b]"), "*% [a_b]*", true},
        {std::string("50x yayby"), "*% [a_b]*", false},
        {std::string("O'Neill"), "O'Neill", true},
        {std::string(""), "*", true},
        {Value{}, "*", true},
        {Value{}, "x*", false},
        {longName, "*Notiz_77.txt", true},
        {longName, "*notiz_77.TXT", true},
        {longName, "*Notiz_7.txt", false},
        {longName, "Notiz_77.txt", false},
        {longName, "W:\\Abl*", true},
        {longName, "*VersandM1.txt", true}, // Any path of that name will do.
        {std::string("VersandM2.txt"), "*VersandM1.txt", false},
        {exactly32, "*1234.txt", true},
        {exactly32.substr(0, 26) + "4.txt", "*4.txt", false}, // 31 characters
    };
    addDocument("A");
    for (const auto& testCase : cases) {
        engine_->execute(sql::Delete{"PartTabelleBenutzDef", nullptr});
        property("A", "Merkmal", testCase.value);
        EXPECT_EQ(finds({{"merkMAL", testCase.pattern}}), testCase.fits ? "A" : "")
            << asText(testCase.value) << " / " << testCase.pattern;
    }
}

TEST_F(UserDefinedTest, ADocumentQualifiesByTheNumberOfItsRowsWithAHit)
{
    for (const char* name : {"B", "A", "C", "D", "E"})
        addDocument(name);
    property("A", "Farbe", "rot");
    property("A", "Form", "rund");
    property("B", "Form", "rund");
    property("B ", "farbe", "ROT"); // The same document and property to the register.
    property("C", "Farbe", "rot");
    property("C", "Form", "eckig");
    property("D", "Farbe", "rot"); // Two rows of one property count as two.
    property("D", "Farbe", "rot");
    property("E", "Farbe", "rot");
    property("Fehlt", "Farbe", "rot"); // No document.
    EXPECT_EQ(finds({{"Farbe", "rot"}, {"Form", "rund"}}), "A B D");
    EXPECT_EQ(finds({{"Farbe", "rot"}}), "A B C D E");
    EXPECT_EQ(finds({{"Farbe", "rot"}, {"Farbe", "r*"}}), "D"); // A row counts once.
    EXPECT_EQ(finds({{"Farbe", "blau"}}), "");
    EXPECT_EQ(finds({{"", ""}, {"Farbe", "rot"}}), ""); // An empty first step is an empty filter.
}

TEST_F(UserDefinedTest, AdditionalValuesLeaveRowsOut)
{
    addDocument("A");
    addDocument("B");
    property("A", "Farbe", "rot", {{"Autor", "MEIER"}, {"Material", Value{}}});
    property("B", "Farbe", "rot", {{"Autor", "Huber"}, {"Material", "C45"}});
    set({{"Farbe", "rot"}});
    EXPECT_EQ(runs(), "A B");
    context_.state().ZusBenutzDef = {{0, "Meier", ""}};
    EXPECT_EQ(runs(), "A");
    context_.state().ZusBenutzDef = {{2, "C45", ""}};
    EXPECT_EQ(runs(), "B");
    context_.state().ZusBenutzDef = {{2, "C45", ""}, {0, "Meier", ""}};
    EXPECT_EQ(runs(), "");
}

TEST_F(UserDefinedTest, TheResultIsInOrderAndHoldsTheDocumentsColumns)
{
    // Few documents are looked up one by one, many in one pass; small results are read whole.
    for (const int count : {3, 2500}) {
        const std::string kind = std::to_string(count);
        engine_->begin();
        for (int i = count; i > 0; --i)
            for (const char* rev : {"1", "0"}) {
                const std::string name = "D" + kind + "-" + std::to_string(10000 + i);
                row("PartTabelle",
                    {{"DokuBez", name}, {"RevBez", rev}, {"Titel", name + rev}, {"Hauptwert_c", 0.5 * i}});
                property(name, "Art", kind.c_str(), {{"RevBez", rev}});
            }
        engine_->commit();
        finds({{"Art", kind}});
        const Recordset& rows = context_.table().visible();
        ASSERT_EQ(rows.RecordCount(), static_cast<std::size_t>(2 * count));
        for (int i = 0; i < 2 * count; ++i) {
            const auto position = static_cast<std::size_t>(i);
            const std::string title = "D" + kind + "-" + std::to_string(10001 + i / 2) + (i % 2 ? "1" : "0");
            ASSERT_EQ(asText(rows.cell(position, "Titel")), title);
            ASSERT_EQ(asNumber(rows.cell(position, "Hauptwert_c")), 0.5 * (i / 2 + 1));
        }
        context_.table().visible().Filter("Titel Like '*-100020'");
        EXPECT_EQ(rows.RecordCount(), 1u);
    }
}

TEST_F(UserDefinedTest, NobodySeesMoreThanHisStatuses)
{
    for (const char* name : {"A", "B", "C"})
        property(name, "Farbe", "rot", {{"Status", std::int64_t{name[0] == 'C' ? 5 : 3}}});
    addDocument("A");
    addDocument("B", {{"Status", 5}}); // Its properties lag behind.
    addDocument("C");
    seesStatuses("34");
    EXPECT_EQ(finds({{"Farbe", "rot"}}), "A");
}

TEST_F(UserDefinedTest, ASpecialTablesDocumentsAreLookedUpAmongThePartsFirst)
{
    addDocument("P", {{"Titel", "Bauteil"}});
    addDocument("Q", {{"Titel", "Bauteil"}});
    context_.tab = 6;
    addDocument("Q", {{"Titel", "Sonderteil"}});
    addDocument("R", {{"Titel", "Sonderteil"}});
    struct
    {
        std::vector<const char*> documents;
        const char* title;
    } const cases[]{{{"P", "Q"}, "Bauteil Bauteil "}, {{"R"}, "Sonderteil "}, {{"R", "Q"}, "Bauteil Sonderteil "}};
    for (const auto& testCase : cases) {
        engine_->execute(sql::Delete{"STbl2TabelleBenutzDef", nullptr});
        for (const char* name : testCase.documents)
            property(name, "Farbe", "rot");
        finds({{"Farbe", "rot"}});
        const Recordset& rows = context_.table().visible();
        std::string title;
        for (std::size_t i = 0; i < rows.RecordCount(); ++i)
            title += asText(rows.cell(i, "Titel")) + " ";
        EXPECT_EQ(title, testCase.title);
    }
}

TEST_F(UserDefinedTest, WhoGivesUpKeepsTheTableAsItWas)
{
    addDocument("A");
    engine_->begin();
    for (int i = 0; i < 9000; ++i)
        property("A", "Farbe", "rot");
    engine_->commit();
    ASSERT_EQ(finds({{"Farbe", "rot"}}), "A");
    addDocument("B");
    property("B", "Farbe", "rot");
    world_.progress.patience = false;
    EXPECT_FALSE(ApplyBenutzDefFilter(context_));
    EXPECT_EQ(shown(), "A");
}

TEST_F(UserDefinedTest, AFaultWhileRowsAreCopiedHasItsBox)
{
    addDocument("A");
    table();
    property("A", "Farbe", "rot");
    engine_->removeTable("PartTabelle");
    world_.boxes.expect("SE-ModFiltern: Erstellen der Filtertabelle BenutzDef",
                        "Fehler beim Erstellen der Filtertabelle BenutzDef");
    world_.boxes.answer(Answer::Cancel);
    set({{"Farbe", "rot"}});
    EXPECT_THROW(ApplyBenutzDefFilter(context_), ProgramExit);
}

class UserDefinedSectionTest : public UserDefinedTest
{
protected:
    UserDefinedSectionTest()
    {
        session_.labels.Bezeichnungen = {{"autor", "Verfasser"}, {"bearbeiter", "Änderer"}, {"material", "Stoff"}};
    }
    UserDefinedSection section_{context_};
};

TEST_F(UserDefinedSectionTest, ListsShowWhatOccurs)
{
    const std::string documentPath = "W:\\Ablage\\Notizen\\2026\\Notiz_77.txt";
    property("A", "Farbe", "rot", {{"Autor", "Meier"}, {"Projekt", " "}});
    property("A", "farbe", "Blau", {{"Autor", "meier"}});
    property("A", "Farbe", "ROT", {{"Autor", "Äbtle"}});
    property("A", "Farbe", " ");
    property("B", "Notiz", Value(documentPath));
    property("B", "Geheim", "x", {{"Status", 5}});
    seesStatuses("01234");
    section_.fillLists();
    EXPECT_THAT(section_.names().values, ElementsAre("Farbe", "Notiz"));
    EXPECT_EQ(section_.names().count, "2");
    EXPECT_THAT(section_.addition(0).values, ElementsAre("Äbtle", "Meier"));
    EXPECT_THAT(section_.addition(3).values, ElementsAre());
    section_.nameChosen("FARBE");
    EXPECT_THAT(section_.values().values, ElementsAre("*", "Blau", "ROT"));
    section_.nameChosen("Notiz");
    EXPECT_THAT(section_.values().values, ElementsAre("*", "*Notiz_77.txt"));
}

TEST_F(UserDefinedSectionTest, ReceiversStandInPlaceOfTheirCodesAndFilterByThem)
{
    addDocument("A");
    property("A", "Kunde", "K1");
    property("A", "Kunde", "K2");
    property("A", "Kunde", "Nirgends");
    for (const auto& [addressCode, name, value] :
         {std::array{"K1", "Ort", "Ulm"}, std::array{"K1", "Firma", "Alt AG"}, std::array{"K2", "Ort", "Köln"}})
        row("Adresstabelle", {{"Kennung", addressCode}, {"Name", name}, {"Wert", value}});
    section_.nameChosen("Kunde");
    section_.setReceiver(true);
    EXPECT_THAT(section_.values().values, ElementsAre("*", "Alt AG", "K2"));
    section_.valueChosen("Alt AG");
    EXPECT_EQ(context_.FilterWerteTabelle().back(), (FilterRow{"BenutzDef", "Kunde", "K1"}));
    EXPECT_EQ(runs(), "A");
}

TEST_F(UserDefinedSectionTest, FivePairsAndTwoAdditionalValuesAreTaken)
{
    world_.boxes.expect("SE-Filtern: Angaben", "Angaben sind unvollständig!");
    section_.valueChosen("rot");
    for (int i = 1; i <= 6; ++i) {
        if (i == 6)
            world_.boxes.expect("SE-Filtern: Anzahl Filterwerte",
                                "Es können maximal 5 benutzerdefinierte Eigenschaften\n"
                                "als Filterwerte vorgegeben werden!\n\nFilterwert 6 und 7 kann aus\n"
                                "Verfasser / Änderer / Stoff\nausgewählt werden.");
        section_.nameChosen("Farbe");
        section_.valueChosen("rot" + std::to_string(i));
    }
    EXPECT_EQ(context_.state().FilterAnzahl, 5);
    EXPECT_EQ(context_.state().FilterSchritte[4], (FilterStep{"", "Farbe", CodeText, "rot5"}));

    world_.boxes.expect("SE-Filtern: Anzahl Filterwerte",
                        "Von den Eigenschaften\nProjekt / Verfasser / Änderer / Stoff\n"
                        "können maximal 2 Filterwerte ausgewählt werden.");
    for (const int index : {3, 0, 2})
        section_.additionChosen(index, "x");
    EXPECT_THAT(context_.state().ZusBenutzDef,
                ElementsAre(AdditionalValue{3, "x", "Projekt"}, AdditionalValue{0, "x", "Verfasser"}));
    EXPECT_EQ(context_.FilterWerteTabelle().back(), (FilterRow{"ZusBenutzDefAutor", "Verfasser", "x"}));

    world_.boxes.expect("SE-Filter: Strukturmerkmale",
                        "Nach Auswahl\nVerfasser / Änderer / Stoff\n\n"
                        "ist die Auswahl der benutzerdefinierten Eigenschaften gesperrt!\n\n"
                        "Die Auswahl ist wieder entsperrt, wenn\nalle Filterwerte zurückgesetzt werden.");
    section_.valueChosen("rot");
}

} // namespace

} // namespace quelvarn
