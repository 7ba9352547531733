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
        for (Filterzustand& type : filter_.typen)
            type.ChFilterStat.fill(false);
        session_.labels.Bezeichnungen = {{"material", "Werkstoff"}, {"firma", "Hersteller"}, {"autor", "Konstrukteur"}};
    }
    void SetUp() override
    {
        if (GetParam() == "PostgreSQL" && !test::PostgresCluster::find())
            GTEST_SKIP() << "no PostgreSQL server is installed here";
    }

    void open(Filterbereich section)
    {
        neuOeffnen();
        page_.OpenFilterPage();
        page_.bereichGewaehlt(section);
    }
    void property(const char* document, const char* name, const char* value, const char* author = "Meier")
    {
        zeile("PartTabelleBenutzDef", {{"DokuBez", document},
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
        page_.benutzDef().nameGewaehlt(name);
        page_.benutzDef().wertGewaehlt(value);
    }

    // "Konstrukteur: Meier"
    std::vector<std::string> rows() const
    {
        std::vector<std::string> texts;
        for (const FilterRow& row : page_.kontext().FilterWerteTabelle())
            texts.push_back(row.Benennung + ": " + row.Wert);
        return texts;
    }
    std::string run()
    {
        page_.filtern();
        return gezeigt();
    }

    FilterPage page_{session_, operations_, filter_, tables_};
};

INSTANTIATE_TEST_SUITE_P(Engines, FilterRows, testing::Values("SQLite", "PostgreSQL"),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(FilterRows, OfOnePropertyAreStepsOfTheirOwn)
{
    for (const char* document : {"A", "B", "C"})
        dokument(document);
    for (const auto& [document, value] : {std::pair("A", "hellrot"), {"A", "dunkelblau"}, {"B", "rot"}, {"C", "blau"}})
        property(document, "Farbe", value);
    open(Filterbereich::BenutzDef);
    pick("Farbe", "rot");
    pick("Farbe", "blau");
    page_.wertGeaendert(0, "*rot");
    page_.wertGeaendert(1, "*blau");
    page_.sterneErgaenzen();
    EXPECT_THAT(rows(), ElementsAre("Farbe: *rot*", "Farbe: *blau*"));
    EXPECT_EQ(run(), "A");
}

TEST_P(FilterRows, OfAdditionalValuesAreTheirValues)
{
    for (const auto& [document, author] : {std::pair("A", "Meier"), {"B", "Meierhofer"}, {"C", "Schulz"}}) {
        dokument(document);
        property(document, "Farbe", "rot", author);
    }
    open(Filterbereich::BenutzDef);
    pick("Farbe", "rot");
    page_.benutzDef().zusatzGewaehlt(3, "P");
    page_.benutzDef().zusatzGewaehlt(0, "Schulz");
    page_.benutzDef().zusatzGewaehlt(0, "Meier"); // In place of the other.
    EXPECT_THAT(rows(), ElementsAre("Farbe: rot", "Projekt: P", "Konstrukteur: Meier"));
    EXPECT_EQ(run(), "A");
    page_.wertGeaendert(2, "meier*");
    EXPECT_EQ(run(), "A B");
    page_.wertGeaendert(2, "Schulz");
    EXPECT_EQ(run(), "C");
}

TEST_P(FilterRows, OfTheStructureChangeTheBranchAsWell)
{
    const auto part = [&](const char* document, const char* feature, const char* material, const char* firma) {
        dokument(document, {{"Hauptmerkmal_C", feature}, {"Material", material}, {"Firma", firma}});
    };
    part("A", "Welle", "S235JR", "Alt AG");
    part("B", "Welle", "S355J2", "Neu AG");
    part("C", "Welle", "C45", "Neu AG");
    part("D", "Wellrad", "C45", "Alt AG");
    open(Filterbereich::Struktur);
    page_.struktur().knotenGewaehlt({"Welle"});
    page_.struktur().materialGewaehlt("C45");
    page_.struktur().firmaGewaehlt("Neu AG");
    EXPECT_EQ(run(), "C");
    page_.wertGeaendert(1, "S*");
    EXPECT_THAT(rows(), ElementsAre("Hauptmerkmal C: Welle", "Werkstoff: S*", "Hersteller: Neu AG"));
    EXPECT_EQ(page_.struktur().StrukturBedingung(),
              "Hauptmerkmal_C = 'Welle' AND Material Like 'S%' AND Firma = 'Neu AG'");
    EXPECT_EQ(page_.struktur().letzterPfad(), Strukturpfad{"Welle"});
    EXPECT_FALSE(page_.struktur().SperreBaum());
    EXPECT_EQ(run(), "B");
    page_.wertGeaendert(2, "* AG");
    EXPECT_EQ(run(), "A B");
    page_.wertGeaendert(0, "*rad");
    page_.wertGeaendert(1, "*45");
    page_.sterneErgaenzen();
    EXPECT_EQ(run(), "D");
}

TEST_P(FilterRows, OfDatesTakeDatesAlone)
{
    dokument("A", {{"Erstellt", Zeitpunkt::aus({2026, 10, 1})}});
    dokument("B", {{"Erstellt", Zeitpunkt::aus({2026, 11, 1})}});
    open(Filterbereich::Eigenschaften);
    page_.eigenschaften().datumGewaehlt(Zeitpunkt::aus({2026, 11, 1}));
    EXPECT_EQ(run(), "B");
    page_.wertGeaendert(0, "<= 15.10.2026");
    EXPECT_THAT(rows(), ElementsAre("Erstellt: <= 15.10.26"));
    EXPECT_EQ(run(), "A");
    page_.wertGeaendert(0, "01.11.26");
    EXPECT_EQ(run(), "A B") << "the operator stays";
    welt_.meldungen.erwarte("Filterwerte", "'>= gestern' ist kein Datum!");
    page_.wertGeaendert(0, ">= gestern");
    welt_.meldungen.erwarte("Filterwerte", "Es muss ein Filterwert angegeben werden!");
    page_.wertGeaendert(0, "");
    page_.wertGeaendert(7, "x"); // No such row.
    EXPECT_THAT(rows(), ElementsAre("Erstellt: <= 01.11.26"));
}

TEST_P(FilterRows, PickedFromAListMeanEachOfItsSpellings)
{
    // A blank in front makes another value, as it does to the database.
    const std::vector<std::string> spellings{"MÜLLER  ", "Müller ", "Müller", "müller", " Müller", "Müllers"};
    for (std::size_t i = 0; i < spellings.size(); ++i)
        dokument(std::string(1, static_cast<char>('A' + i)),
                 {{"Projekt", spellings[i]}, {"Hauptmerkmal_C", spellings[i]}, {"Firma", spellings[i]}});
    dokument("G", {{"Projekt", "M6*20 "}});
    dokument("H", {{"Projekt", "STRASSE "}});
    dokument("I", {{"Projekt", "100% "}});
    open(Filterbereich::Eigenschaften);
    EXPECT_THAT(page_.eigenschaften().liste(1).werte,
                ElementsAre(" Müller", "100% ", "M6*20 ", "Müller", "Müllers", "STRASSE "));
    for (const auto& [value, found] : {std::pair("Müller", "A B C D"),
                                       {" Müller", "E"},
                                       {"Müllers", "F"},
                                       {"M6*20", "G"},
                                       {"Straße", "H"},
                                       {"100%", "I"},
                                       {"*üller*", "A B C D E F"}}) {
        page_.eigenschaften().wertGewaehlt(1, value);
        EXPECT_EQ(run(), found) << value;
        EXPECT_EQ(page_.eigenschaften().liste(1).werte.empty(), false) << value << ": the lists are of the same rows";
        page_.bereichGewaehlt(Filterbereich::Struktur);
        page_.bereichGewaehlt(Filterbereich::Eigenschaften);
    }
    page_.bereichGewaehlt(Filterbereich::Struktur);
    page_.struktur().firmaGewaehlt("Müller");
    EXPECT_EQ(run(), "A B C D");
    page_.zurueck();
    ASSERT_EQ(page_.struktur().wurzel().kinder[1].wert, "Müller");
    page_.struktur().knotenGewaehlt({"Müller"});
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
        dokument(document);
        property(document.c_str(), cells[i][0].c_str(), cells[i][1].c_str(), cells[i][2].c_str());
    }
    open(Filterbereich::BenutzDef);
    EXPECT_THAT(page_.benutzDef().namen().werte, ElementsAre(testing::AnyOf("Farbe", "farbe")));
    EXPECT_THAT(page_.benutzDef().zusatz(0).werte, ElementsAre("Meier", "X"));
    const std::string name = page_.benutzDef().namen().werte.front();
    page_.benutzDef().nameGewaehlt(name);
    EXPECT_THAT(page_.benutzDef().werte().werte, ElementsAre("*", " rot", "rot", "*Notiz_77.txt"));
    page_.benutzDef().wertGewaehlt("rot");
    EXPECT_EQ(run(), "A B C");
    page_.benutzDef().zusatzGewaehlt(0, "Meier");
    EXPECT_EQ(run(), "A B C");
    page_.zurueck();
    pick(name.c_str(), "*Notiz_77.txt");
    EXPECT_EQ(run(), "E F");
}

} // namespace
} // namespace quelvarn
