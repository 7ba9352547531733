#include "base/text.h"
#include "filter/filter_fixture.h"
#include "filter/steps.h"
#include "filter/structure_section.h"
#include "filter/template_lookup.h"

using namespace quelvarn;

namespace {

constexpr const char* LOCK_TITLE = "SE-Filter: Strukturmerkmale";

class StructureFeatures : public FilterTest
{
protected:
    StructureFeatures()
    {
        context_.state().section = FilterSection::Structure;
        session_.labels.Bezeichnungen = {{"material", "Werkstoff"}, {"firma", "Kunde"}};
        part("1", {"Welle", "lang", "glatt", "hart", "neu"}, "C45", "Meier", 10);
        part("2", {"Welle", "lang", "glatt", "weich", ""}, "St 37", "Meier", 2.5);
        part("3", {"Welle", "kurz", "", "", ""}, "C45", "Ober", 0);
        part("4", {"Rohr", "kurz", "", "", ""}, "V2A", "Ulm", 7);
        part("5", {"Bob's", "5'' Zoll", "", "", ""}, "Alu", "", 1);
        row("PartTabelle", {{"DokuBez", "6"}});
        section_.reset();
    }

    void part(const std::string& DokuBez, const std::vector<std::string>& features, const char* material,
              const char* company, double value)
    {
        addDocument(DokuBez, {{"Hauptmerkmal_C", features[0]},
                              {"Hauptmerkmal_D", features[1]},
                              {"Hauptmerkmal_E", features[2]},
                              {"Hauptmerkmal_F", features[3]},
                              {"Hauptmerkmal_G", features[4]},
                              {"Material", material},
                              {"Firma", company},
                              {"Hauptwert_a", value},
                              {"Alias_a", "alias " + DokuBez}});
    }

    static std::string asText(const std::vector<StructureNode>& level, const std::string& indent = "")
    {
        std::string text;
        for (const StructureNode& node : level)
            text += indent + node.value + "\n" + asText(node.children, indent + "  ");
        return text;
    }
    std::string tree() const { return asText(section_.root().children); }
    static std::string asText(const ValueList& list) { return join(list.values, "|") + " (" + list.count + ")"; }
    std::string steps() const
    {
        std::string text;
        for (int i = 0; i < context_.state().FilterAnzahl; ++i) {
            const FilterStep& step = context_.state().FilterSchritte[static_cast<std::size_t>(i)];
            text += step.Feldname + "=" + step.value + " ";
        }
        return text;
    }

    StructureSection section_{context_};
};

} // namespace

TEST_F(StructureFeatures, TreeIsWalkedDownwardsAndEachStepNarrows)
{
    EXPECT_EQ(tree(), "Bob's\nRohr\nWelle\n");
    EXPECT_EQ(asText(section_.material()), "Alu|C45|St 37|V2A (4)");
    section_.nodeChosen({});
    section_.nodeChosen({"Welle"});
    section_.nodeChosen({"Welle"}); // Once more: nothing.
    EXPECT_EQ(tree(), "Bob's\nRohr\nWelle\n  kurz\n  lang\n");
    EXPECT_EQ(section_.root().children[2].statusRow, "Welle; Anz. 2; ");
    EXPECT_EQ(asText(section_.material()), "C45|St 37 (2)");
    EXPECT_EQ(asText(section_.company()), "Meier|Ober (2)");
    EXPECT_EQ(asText(section_.mainValues().values()), "2,5|10 (2)");
    EXPECT_EQ(asText(section_.mainValues().alias()), "alias 1|alias 2|alias 3 (3)");

    StructurePath documentPath{"Welle"};
    for (const char* value : {"lang", "glatt", "hart", "neu"}) {
        documentPath.emplace_back(value);
        section_.nodeChosen(documentPath);
    }
    EXPECT_EQ(tree(), "Bob's\nRohr\nWelle\n  kurz\n  lang\n    glatt\n      hart\n        neu\n      weich\n");
    EXPECT_EQ(section_.StrukturBedingung(),
              "Hauptmerkmal_C = 'Welle' AND Hauptmerkmal_D = 'lang' AND Hauptmerkmal_E = 'glatt' "
              "AND Hauptmerkmal_F = 'hart' AND Hauptmerkmal_G = 'neu'");
    EXPECT_EQ(steps(), "Hauptmerkmal_C=Welle Hauptmerkmal_D=lang Hauptmerkmal_E=glatt Hauptmerkmal_F=hart "
                       "Hauptmerkmal_G=neu ");
    EXPECT_EQ(context_.FilterWerteTabelle()[3], (FilterRow{"Hauptmerkmal_F", "Hauptmerkmal F", "hart"}));
    EXPECT_EQ(asText(section_.material()), "C45 (1)");

    section_.materialChosen("C45");
    section_.companyChosen("Meier");
    EXPECT_EQ(context_.state().FilterAnzahl, 7);
    EXPECT_EQ(context_.FilterWerteTabelle().back(), (FilterRow{"StrukturMerkFirma", "Kunde", "Meier"}));
}

TEST_F(StructureFeatures, LeavingThePathIsRefused)
{
    section_.nodeChosen({"Welle"});
    section_.nodeChosen({"Welle", "lang"});
    const std::string before = tree();
    for (const StructurePath& documentPath :
         {StructurePath{"Welle", "kurz"}, StructurePath{"Rohr"}, StructurePath{"Welle"}}) {
        world_.boxes.expect("SE-Doku: Auswahl Pfad",
                            "Pfad wurde nicht eingehalten!\n\nGehen Sie über <Zurück> zum Anfang des Strukturbaumes.");
        section_.nodeChosen(documentPath);
    }
    EXPECT_EQ(tree(), before);
    EXPECT_EQ(steps(), "Hauptmerkmal_C=Welle Hauptmerkmal_D=lang ");
    EXPECT_EQ(section_.lastPath(), (StructurePath{"Welle", "lang"}));
}

TEST_F(StructureFeatures, ApostrophesBelongToTheValue)
{
    section_.nodeChosen({"Bob's"});
    section_.nodeChosen({"Bob's", "5'' Zoll"});
    EXPECT_EQ(asText(section_.material()), "Alu (1)");
    EXPECT_EQ(asText(section_.mainValues().values()), "1 (1)");
    EXPECT_EQ(context_.state().FilterSchritte[1].value, "5'' Zoll");
}

TEST_F(StructureFeatures, LaterChoicesLockEarlierOnes)
{
    const std::string end = "\n\nDie Auswahl ist wieder entsperrt, wenn\nalle Filterwerte zurückgesetzt werden.";
    section_.materialChosen("C45");
    EXPECT_EQ(section_.StrukturBedingung(), " Material = 'C45'");
    EXPECT_EQ(asText(section_.mainValues().values()), "10 (1)");
    world_.boxes.expect(LOCK_TITLE, "Nach Auswahl\n - Werkstoff / Kunde\noder\n- Hauptwerte a bis g\nist die "
                                    "Auswahl weiterer Strukturmerkmale\nC bis G gesperrt!" +
                                        end);
    section_.nodeChosen({"Welle"});
    section_.companyChosen("Meier");
    EXPECT_EQ(section_.StrukturBedingung(), " Material = 'C45' AND Firma = 'Meier'");

    section_.adoptMainValue("10", "");
    const std::string locked = "Nach Auswahl\n- Hauptwerte a bis g\nist die Auswahl Werkstoff / Kunde gesperrt!" + end;
    world_.boxes.expect(LOCK_TITLE, locked);
    section_.materialChosen("V2A");
    world_.boxes.expect(LOCK_TITLE, locked);
    section_.companyChosen("Ulm");
    EXPECT_EQ(steps(), "Material=C45 Firma=Meier ");

    clearFilter(context_.state());
    section_.reset();
    EXPECT_EQ(section_.StrukturBedingung(), "");
    section_.nodeChosen({"Rohr"});
    EXPECT_EQ(steps(), "Hauptmerkmal_C=Rohr ");
}

MainValueBand bounds(std::int64_t from, std::int64_t to)
{
    return {Decimal::ofUnits(from), Decimal::ofUnits(to)};
}

TEST_F(StructureFeatures, MainValuesTakeAnAbsoluteBand)
{
    struct TestCase
    {
        const char* CbHW;
        const char* TextBB;
        const char* noNumber; // "" when it is taken
        MainValueBand bounds;
        const char* band;
    };
    const TestCase cases[]{
        {"", "1", "Kein Zahlenwert: ", {}, ""},
        {"zehn", "1", "Kein Zahlenwert: zehn", {}, ""},
        {"10", "%", "Kein Zahlenwert: %", {}, ""},
        {"9E20", "1", "Kein Zahlenwert: 9E20", {}, ""},
        {"8E14", "8E14", "Kein Zahlenwert: 8E14", {}, ""},
        {"2,5", "", "", bounds(25000, 25000), "2,5"},
        {"10", "0", "", bounds(100000, 100000), "10"},
        {"10", "0,5", "", bounds(95000, 105000), "9,5 - 10,5"},
        {"1.000", "2", "", bounds(9980000, 10020000), "998 - 1002"},
        {"0,7", "0,1", "", bounds(6000, 8000), "0,6 - 0,8"},
        {"0,3", "0,2", "", bounds(1000, 5000), "0,1 - 0,5"},
    };
    section_.mainValues().chooseLabel(2);
    for (const TestCase& testCase : cases) {
        if (*testCase.noNumber != '\0')
            world_.boxes.expect("Zahlenwerte", testCase.noNumber);
        section_.adoptMainValue(testCase.CbHW, testCase.TextBB);
        EXPECT_EQ(context_.state().HauptwertBereich[2], testCase.bounds) << testCase.CbHW;
        EXPECT_EQ(section_.mainValues().band(2), testCase.band) << testCase.CbHW;
        EXPECT_EQ(context_.state().HauptwertAktiv, testCase.bounds.set());
    }
    section_.clearMainValues();
    EXPECT_EQ(section_.mainValues().band(2), "");
    EXPECT_FALSE(context_.state().HauptwertAktiv);
    EXPECT_FALSE(section_.SperreBaum()) << "the locks stay";
}

TEST_F(StructureFeatures, BoxesDecideWhatIsCounted)
{
    section_.mainValues().showValueCount(false);
    section_.mainValues().showAliasCount(false);
    section_.nodeChosen({"Rohr"});
    EXPECT_EQ(asText(section_.mainValues().values()), " ()");
    EXPECT_EQ(asText(section_.mainValues().alias()), "alias 4 ()");
    section_.mainValues().showValueCount(true);
    EXPECT_EQ(asText(section_.mainValues().values()), "7 (1)");
}

TEST_F(StructureFeatures, SavedChoicesComeBackWithTheirLocks)
{
    section_.restore(
        std::vector<FilterStep>{{"Hauptmerkmal_C", "Welle"}, {"Hauptmerkmal_D", "lang"}, {"Material", "C45"}});
    EXPECT_EQ(tree(), "Bob's\nRohr\nWelle\n  kurz\n  lang\n    glatt\n");
    EXPECT_EQ(section_.StrukturBedingung(),
              "Hauptmerkmal_C = 'Welle' AND Hauptmerkmal_D = 'lang' AND Material = 'C45'");
    EXPECT_FALSE(section_.SperreBaum());
    EXPECT_TRUE(section_.SperreMaterial());
    EXPECT_EQ(steps(), "") << "the steps are not its business";
}

TEST_F(StructureFeatures, AFaultShowsTheBoxesOfItsLevelAndChangesNothing)
{
    engine_->removeTable("DraftTabelle"); // The template look-up reads it.
    const std::pair<StructurePath, Box> cases[]{
        {{"Welle"}, {"SE-Filtern: Aufbau der Strukturmerkmale D", "Fehler beim Aufbau der Strukturmerkmale D!"}},
        {{"Rohr"}, {"SE-Filtern: Aufbau der Strukturmerkmale D", "Fehler beim Aufbau der Strukturmerkmale D!"}},
    };
    for (const auto& [documentPath, box] : cases) {
        world_.boxes.expect(box.title, box.text);
        world_.boxes.answer(); // The common report.
        section_.nodeChosen(documentPath);
    }
    EXPECT_EQ(steps(), "");
    EXPECT_EQ(section_.StrukturBedingung(), "");
    EXPECT_TRUE(section_.lastPath().empty());
}

TEST_F(StructureFeatures, TheMostExactTemplateIsFoundFirst)
{
    const auto drawingTemplate = [&](const char* name, const Values& features) {
        std::vector<sql::Assignment> values{{"DokuBez", name}, {"filename", name}, {"Kategorie", "QV_Vorlage"}};
        for (const char* empty : {"Hauptmerkmal_D", "Hauptmerkmal_E", "Hauptmerkmal_F", "Hauptmerkmal_G"})
            values.push_back({empty, std::string()});
        for (const auto& [column, value] : features) {
            std::erase_if(values, [&](const auto& assignment) { return assignment.column == column; });
            values.push_back({column, value});
        }
        engine_->insert("DraftTabelle", values);
    };
    drawingTemplate("g.dft", {{"Hauptmerkmal_C", "Welle"}, {"Hauptmerkmal_G", "x"}});
    drawingTemplate("c2.dft", {{"Hauptmerkmal_C", "Welle"}});
    drawingTemplate("c.dft", {{"Hauptmerkmal_C", "Welle"}}); // Of several on one branch the first by path.
    drawingTemplate("d.dft", {{"Hauptmerkmal_C", "Welle"}, {"Hauptmerkmal_D", "lang"}, {"Hauptmerkmal_F", "x"}});
    drawingTemplate("r.dft", {{"Hauptmerkmal_C", "Rohr"}, {"Hauptmerkmal_D", "kurz"}});
    row("DraftTabelle", {{"filename", "keine.dft"}, {"Kategorie", "Plan"}, {"Hauptmerkmal_C", "Bob's"}});

    const std::pair<std::vector<std::string>, const char*> cases[]{
        {{"Welle"}, "c.dft"},
        {{"Welle", "lang"}, "d.dft"},
        {{"Rohr"}, "r.dft"},
        {{"Rohr", "kurz"}, "r.dft"},
        {{"Bob's"}, ""},
        {{"Welle' OR Hauptmerkmal_C Like '%"}, ""},
        {{}, ""},
        {{"Welle", "", "", "", "", ""}, ""},
    };
    for (const auto& [branch, found] : cases)
        EXPECT_EQ(VorlageSuchen(session_.database.connection, branch), found) << join(branch, "/");

    section_.nodeChosen({"Welle"});
    EXPECT_EQ(section_.drawingTemplate(), "c.dft");
    section_.nodeChosen({"Welle", "kurz"});
    EXPECT_EQ(section_.drawingTemplate(), "c.dft") << "no template leaves the last path";
}
