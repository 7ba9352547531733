// What the rows of filter values show is what filters, and a value picked from a list means each spelling that the list
// counts as this one: on every part of the filter page and every engine.
#include "database/postgres_cluster.h"
#include "filter/filter_fixture.h"
#include "filter/filter_page.h"

#include <gmock/gmock.h>

namespace quelvarn {
namespace {

using testing::ElementsAre;

class FilterRows : public FilterTest, public testing::WithParamInterface<std::string_view>
{
protected:
    FilterRows() : FilterTest(test::addressOn(GetParam()))
    {
        for (TypeFilter& type : filter_.types)
            type.ChFilterStat.fill(false);
        session_.labels.Bezeichnungen = {{"material", "Werkstoff"}, {"firma", "Hersteller"}, {"autor", "Konstrukteur"}};
    }
    void SetUp() override
    {
        if (GetParam() == "PostgreSQL" && !test::PostgresCluster::find())
            GTEST_SKIP() << "no PostgreSQL server is installed here";
    }

    void open(FilterSection section)
    {
        reopen();
        page_.OpenFilterPage();
        page_.sectionChosen(section);
    }
    void property(const char* document, const char* name, const char* value, const char* author = "Meier")
    {
        row("PartTabelleBenutzDef", {{"DokuBez", document},
                                     {"RevBez", "0"},
                                     {"Name", name},
                                     {"Wert", value},
                                     {"Status", 3},
                                     {"Autor", author},
                                     {"Projekt", "P"},
                                     {"Bearbeiter", "B"},
                                     {"Material", "M"}});
    }
    void pick(const char* name, const char* value)
    {
        page_.userDefined().nameChosen(name);
        page_.userDefined().valueChosen(value);
    }

    // "Konstrukteur: Meier"
    std::vector<std::string> rows() const
    {
        std::vector<std::string> texts;
        for (const FilterRow& row : page_.context().FilterWerteTabelle())
            texts.push_back(row.Benennung + ": " + row.value);
        return texts;
    }
    std::string run()
    {
        page_.filter();
        return shown();
    }

    FilterPage page_{session_, operations_, filter_, tables_};
};

INSTANTIATE_TEST_SUITE_P(Engines, FilterRows, testing::Values("SQLite", "PostgreSQL"),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(FilterRows, OfOnePropertyAreStepsOfTheirOwn)
{
    for (const char* document : {"A", "B", "C"})
        addDocument(document);
    for (const auto& [document, value] : {std::pair("A", "hellrot"), {"A", "dunkelblau"}, {"B", "rot"}, {"C", "blau"}})
        property(document, "Farbe", value);
    open(FilterSection::UserDefined);
    pick("Farbe", "rot");
    pick("Farbe", "blau");
    page_.valueChanged(0, "*rot");
    page_.valueChanged(1, "*blau");
    page_.starsComplete();
    EXPECT_THAT(rows(), ElementsAre("Farbe: *rot*", "Farbe: *blau*"));
    EXPECT_EQ(run(), "A");
}

TEST_P(FilterRows, OfAdditionalValuesAreTheirValues)
{
    for (const auto& [document, author] : {std::pair("A", "Meier"), {"B", "Meierhofer"}, {"C", "Schulz"}}) {
        addDocument(document);
        property(document, "Farbe", "rot", author);
    }
    open(FilterSection::UserDefined);
    pick("Farbe", "rot");
    page_.userDefined().additionChosen(3, "P");
    page_.userDefined().additionChosen(0, "Schulz");
    page_.userDefined().additionChosen(0, "Meier"); // In place of the other.
    EXPECT_THAT(rows(), ElementsAre("Farbe: rot", "Projekt: P", "Konstrukteur: Meier"));
    EXPECT_EQ(run(), "A");
    page_.valueChanged(2, "meier*");
    EXPECT_EQ(run(), "A B");
    page_.valueChanged(2, "Schulz");
    EXPECT_EQ(run(), "C");
}

TEST_P(FilterRows, OfTheStructureChangeTheBranchAsWell)
{
    const auto part = [&](const char* document, const char* feature, const char* material, const char* company) {
        addDocument(document, {{"Hauptmerkmal_C", feature}, {"Material", material}, {"Firma", company}});
    };
    part("A", "Welle", "S235JR", "Alt AG");
    part("B", "Welle", "S355J2", "Neu AG");
    part("C", "Welle", "C45", "Neu AG");
    part("D", "Wellrad", "C45", "Alt AG");
    open(FilterSection::Structure);
    page_.structure().nodeChosen({"Welle"});
    page_.structure().materialChosen("C45");
    page_.structure().companyChosen("Neu AG");
    EXPECT_EQ(run(), "C");
    page_.valueChanged(1, "S*");
    EXPECT_THAT(rows(), ElementsAre("Hauptmerkmal C: Welle", "Werkstoff: S*", "Hersteller: Neu AG"));
    EXPECT_EQ(page_.structure().StrukturBedingung(),
              "Hauptmerkmal_C = 'Welle' AND Material Like 'S%' AND Firma = 'Neu AG'");
    EXPECT_EQ(page_.structure().lastPath(), StructurePath{"Welle"});
    EXPECT_FALSE(page_.structure().SperreBaum());
    EXPECT_EQ(run(), "B");
    page_.valueChanged(2, "* AG");
    EXPECT_EQ(run(), "A B");
    page_.valueChanged(0, "*rad");
    page_.valueChanged(1, "*45");
    page_.starsComplete();
    EXPECT_EQ(run(), "D");
}

TEST_P(FilterRows, OfDatesTakeDatesAlone)
{
    addDocument("A", {{"Erstellt", DateTime::from({2026, 10, 1})}});
    addDocument("B", {{"Erstellt", DateTime::from({2026, 11, 1})}});
    open(FilterSection::Properties);
    page_.properties().dateChosen(DateTime::from({2026, 11, 1}));
    EXPECT_EQ(run(), "B");
    page_.valueChanged(0, "<= 15.10.2026");
    EXPECT_THAT(rows(), ElementsAre("Erstellt: <= 15.10.26"));
    EXPECT_EQ(run(), "A");
    page_.valueChanged(0, "01.11.26");
    EXPECT_EQ(run(), "A B") << "the operator stays";
    world_.boxes.expect("Filterwerte", "'>= gestern' ist kein Datum!");
    page_.valueChanged(0, ">= gestern");
    world_.boxes.expect("Filterwerte", "Es muss ein Filterwert angegeben werden!");
    page_.valueChanged(0, "");
    page_.valueChanged(7, "x"); // No such row.
    EXPECT_THAT(rows(), ElementsAre("Erstellt: <= 01.11.26"));
}

TEST_P(FilterRows, PickedFromAListMeanEachOfItsSpellings)
{
    // A blank in front makes another value, as it does to the database.
    const std::vector<std::string> spellings{"MÜLLER  ", "Müller ", "Müller", "müller", " Müller", "Müllers"};
    for (std::size_t i = 0; i < spellings.size(); ++i)
        addDocument(std::string(1, static_cast<char>('A' + i)),
                    {{"Projekt", spellings[i]}, {"Hauptmerkmal_C", spellings[i]}, {"Firma", spellings[i]}});
    addDocument("G", {{"Projekt", "M6*20 "}});
    addDocument("H", {{"Projekt", "STRASSE "}});
    addDocument("I", {{"Projekt", "100% "}});
    open(FilterSection::Properties);
    EXPECT_THAT(page_.properties().list(1).values,
                ElementsAre(" Müller", "100% ", "M6*20 ", "Müller", "Müllers", "STRASSE "));
    for (const auto& [value, found] : {std::pair("Müller", "A B C D"),
                                       {" Müller", "E"},
                                       {"Müllers", "F"},
                                       {"M6*20", "G"},
                                       {"Straße", "H"},
                                       {"100%", "I"},
                                       {"*üller*", "A B C D E F"}}) {
        page_.properties().valueChosen(1, value);
        EXPECT_EQ(run(), found) << value;
        EXPECT_EQ(page_.properties().list(1).values.empty(), false) << value << ": the lists are of the same rows";
        page_.sectionChosen(FilterSection::Structure);
        page_.sectionChosen(FilterSection::Properties);
    }
    page_.sectionChosen(FilterSection::Structure);
    page_.structure().companyChosen("Müller");
    EXPECT_EQ(run(), "A B C D");
    page_.back();
    ASSERT_EQ(page_.structure().root().children[1].value, "Müller");
    page_.structure().nodeChosen({"Müller"});
    EXPECT_EQ(run(), "A B C D");
}

TEST_P(FilterRows, OfUserDefinedPropertiesMeanEachSpellingAsWell)
{
    const std::string path = "W:\\Ablage\\Notizen\\2026\\Notiz_77.txt";
    const std::vector<std::array<std::string, 3>> cells{{"FARBE ", "ROT ", "MEIER "}, {"Farbe", "rot", "Meier"},
                                                        {"farbe", "rot  ", "meier"},  {"Farbe", " rot", "Meier"},
                                                        {"Farbe", path + " ", "X"},   {"Farbe", path, "X"}};
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string document(1, static_cast<char>('A' + i));
        addDocument(document);
        property(document.c_str(), cells[i][0].c_str(), cells[i][1].c_str(), cells[i][2].c_str());
    }
    open(FilterSection::UserDefined);
    EXPECT_THAT(page_.userDefined().names().values, ElementsAre(testing::AnyOf("Farbe", "farbe")));
    EXPECT_THAT(page_.userDefined().addition(0).values, ElementsAre("Meier", "X"));
    const std::string name = page_.userDefined().names().values.front();
    page_.userDefined().nameChosen(name);
    EXPECT_THAT(page_.userDefined().values().values, ElementsAre("*", " rot", "rot", "*Notiz_77.txt"));
    page_.userDefined().valueChosen("rot");
    EXPECT_EQ(run(), "A B C");
    page_.userDefined().additionChosen(0, "Meier");
    EXPECT_EQ(run(), "A B C");
    page_.back();
    pick(name.c_str(), "*Notiz_77.txt");
    EXPECT_EQ(run(), "E F");
}

} // namespace
} // namespace quelvarn
