#include "register_fixture.h"

#include <tuple>

namespace quelvarn {
namespace {

class TreeTest : public RegisterTest
{
protected:
    // D/b of the table stands in every relation that a document can have; D/c is its newer revision.
    void createLinked(int tab)
    {
        const DocumentType& type = DOCUMENT_TYPES[tab];
        const std::string extension(type.extension.empty() ? "par" : type.extension);
        const std::string file = documentPath("D_b." + extension);
        row(type.table, {{"DokuBez", "D"},
                         {"RevBez", "b"},
                         {"Dateiname", "D_b." + extension},
                         {"filename", file},
                         {"Status", 3},
                         {"Hauptmerkmal_B", "Welle"},
                         {"Kommentar", "gehärtet"}});
        addDocument(tab, "D", "c");
        row("ZusBauPart", {{"AssembDokuBez", "B"}, {"Part", file}});
        row("ZusBauSubAss", {{"AssembDokuBez", "B"}, {"Subassembly", file}});
        row("VerbindungDraftPart",
            {{"DokuBezDraft", "D"}, {"RevBezDraft", "b"}, {"filenameDraft", "x"}, {"PfadAssembPart", file}});
        row("VerbindungWeldAssemb", {{"DokuBezWeld", "D"}, {"RevBezWeld", "b"}, {"PfadAssemb", file}});
        row("VerbindungPartZusDoku", {{"Dokufilename", file}, {"ZusDokufilename", "W:\\a.doc"}});
        row("TIFFTabelle", {{"Dateiname", "D_b.tif"}, {"filename", "W:\\Tiff\\D_b.tif"}});
        world_.files.create(documentPath("D_b.pdf"));
        row("Adresstabelle", {{"Kennung", "Kunde 7"}, {"Name", "Ort"}, {"Wert", "Ulm"}});
        row(type.tableUserDef, {{"DokuBez", "D"}, {"RevBez", "b"}, {"Name", "Gewicht"}, {"Wert", "7"}});
        row(type.tableUserDef, {{"DokuBez", "D"}, {"RevBez", "b"}, {"Name", "KUNDE 7"}, {"Wert", "W:\\v"}});
    }
};

const std::string CHILDREN = "Eigenschaften\n"
                             "  Dateieigenschaften\n"
                             "  Hauptmerkmale / -werte\n"
                             "  Benutzerdef. Eigenschaften\n"
                             "  Versendet an\n"
                             "  Stichwörter / Kommentar\n"
                             "  Zusätzl. Dokumente\n"
                             "Revision!\n"
                             "SmartViewer\n";
const std::string CHILDREN_SPECIAL_TABLE = "Eigenschaften\n"
                                           "  Dateieigenschaften\n"
                                           "  Hauptmerkmale / -werte\n"
                                           "  Benutzerdef. Eigenschaften\n"
                                           "  Stichwörter / Kommentar\n"
                                           "SmartViewer\n";
const std::string CONTAINED = "Enthalten in Baugruppe\nEnthalten in Zeichnung\n";
const std::string NOTHING = "Eigenschaften\n  Dateieigenschaften\nSmartViewer\n";

TEST_F(TreeTest, ShowsANodeForEachRelationThatItsTypeKnows)
{
    const std::string expected[] = {
        CHILDREN + CONTAINED,
        CHILDREN + CONTAINED,
        CHILDREN + CONTAINED + "Enthalten in Schweißteil\nBesteht aus\n",
        CHILDREN + "TIFF-Dokument\nPDF-Dokument\nEnthält\n",
        CHILDREN + CONTAINED + "Enthält Baugruppe\n",
        CHILDREN_SPECIAL_TABLE + CONTAINED,
        CHILDREN_SPECIAL_TABLE + CONTAINED,
        CHILDREN_SPECIAL_TABLE + CONTAINED,
    };
    for (const DocumentType& type : DOCUMENT_TYPES) {
        SCOPED_TRACE(type.table);
        createLinked(type.tab);
        showDocument(type.tab, "D", "b");
        EXPECT_EQ(tree(), expected[type.tab]);
    }
}

TEST_F(TreeTest, ShowsNoNodeWithoutItsRelation)
{
    for (const DocumentType& type : DOCUMENT_TYPES) {
        SCOPED_TRACE(type.table);
        addDocument(type.tab, "E");
        tabs_.chooseTab(type.tab);
        EXPECT_EQ(tree(), type.key == "Assemb" ? NOTHING + "Besteht aus\n" : NOTHING);
    }
}

TEST_F(TreeTest, EachSwitchHidesItsNodesOnly)
{
    const std::tuple<int, bool TreeSwitches::*, std::string> cases[] = {
        {0, &TreeSwitches::Verwendung, CONTAINED},
        {0, &TreeSwitches::Revision, "Revision!\n"},
        {0, &TreeSwitches::HauptMerk, "  Hauptmerkmale / -werte\n"},
        {0, &TreeSwitches::BenutzDef, "  Benutzerdef. Eigenschaften\n"},
        {0, &TreeSwitches::Versendet, "  Versendet an\n"},
        {0, &TreeSwitches::StichKomm, "  Stichwörter / Kommentar\n"},
        {0, &TreeSwitches::ZusDoku, "  Zusätzl. Dokumente\n"},
        {2, &TreeSwitches::Verwendung, CONTAINED + "Enthalten in Schweißteil\nBesteht aus\n"},
        {3, &TreeSwitches::TIFFDoku, "TIFF-Dokument\n"},
        {3, &TreeSwitches::PDFDoku, "PDF-Dokument\n"},
        {3, &TreeSwitches::Verwendung, "Enthält\n"},
    };
    for (const int tab : {0, 2, 3})
        createLinked(tab);
    for (const auto& [tab, option, missing] : cases) {
        session_.Tree = {};
        showDocument(tab, "D", "b");
        std::string expected = tree();
        ASSERT_NE(expected.find(missing), std::string::npos) << missing;
        expected.erase(expected.find(missing), missing.size());
        session_.Tree.*option = false;
        page_.treeSwitchesChanged();
        EXPECT_EQ(tree(), expected) << missing;
    }
}

TEST_F(TreeTest, WithoutOpenNodesTheChildrenComeOnceOnTheFirstExpand)
{
    createLinked(0);
    session_.Tree.Node = false;
    showDocument(0, "D", "b");
    const std::string above = "Revision!\nSmartViewer\n" + CONTAINED;
    EXPECT_EQ(tree(), "Eigenschaften\n  Dateieigenschaften\n" + above);
    EXPECT_FALSE(tree_.tree().roots.front().open);
    for (int times = 0; times < 2; ++times) {
        tree_.unfold();
        EXPECT_EQ(tree(), CHILDREN + CONTAINED);
    }
    tabs_.chooseRow(0);
    tree_.unfold();
    EXPECT_EQ(session_.AktDoku.RevBez, "c");
    EXPECT_EQ(tree(), "Eigenschaften\n  Dateieigenschaften\nRevision\nSmartViewer\n");
}

TEST_F(TreeTest, RevisionNodeTellsOfFurtherRevisions)
{
    const std::tuple<std::vector<std::string>, std::string, std::string> cases[] = {
        {{"0"}, "0", ""},         {{"0", "a"}, "0", "Revision!"}, {{"0", "a"}, "a", "Revision"},
        {{"a"}, "a", "Revision"}, {{"a", "B"}, "a", "Revision!"}, {{"9", "10"}, "9", "Revision"}, // Text order.
    };
    int number = 0;
    for (const auto& [revisions, shown, node] : cases) {
        const std::string DokuBez = "R-" + std::to_string(number++);
        for (const std::string& revision : revisions)
            addDocument(1, DokuBez, revision);
        showDocument(1, DokuBez, shown);
        EXPECT_EQ(tree(),
                  "Eigenschaften\n  Dateieigenschaften\n" + node + (node.empty() ? "" : "\n") + "SmartViewer\n");
        EXPECT_EQ(info_.general().newerRevision, node.ends_with('!'));
    }
}

TEST_F(TreeTest, MainFeaturesCountByTheirSumAndTheFirstThree)
{
    row("PartTabelle", {{"Hauptmerkmal_D", "Bolzen"}});
    row("PartTabelle", {{"Hauptmerkmal_C", "Bolzen"}});
    row("PartTabelle", {{"Hauptwert_a", 2.5}, {"Hauptwert_g", -2.5}});
    row("PartTabelle", {{"Hauptwert_g", 0.5}});
    tabs_.chooseTab(0);
    for (const bool expected : {false, true, false, true}) {
        EXPECT_EQ(tree_.tree().find(nodes::STRUCTURE_FEATURES) != nullptr, expected);
        tabs_.nextRow();
    }
}

TEST_F(TreeTest, FindsRegisteredAndNeighbouringTiffs)
{
    addDocument(3, "A"); // registered, though the file is gone
    row("TIFFTabelle", {{"Dateiname", "A_0.TIF"}, {"filename", "W:\\Tiff\\A_0.tif"}});
    addDocument(3, "B"); // beside the drawing
    world_.files.create(documentPath("B_0.tif"));
    addDocument(3, "C");
    tabs_.chooseTab(3);
    for (const bool expected : {true, true, false}) {
        EXPECT_EQ(tree_.tree().find(nodes::TIFF) != nullptr, expected) << session_.AktDoku.DokuBez;
        tabs_.nextRow();
    }
}

TEST_F(TreeTest, WhereUsedIsAskedByTheDrivePathOfANetworkPath)
{
    row("PartTabelle", {{"DokuBez", "N"}, {"filename", "\\\\server\\konstruktion\\N.par"}});
    row("PartTabelle", {{"DokuBez", "O"}, {"filename", "\\\\fremd\\weg\\O.par"}});
    row("ZusBauPart", {{"AssembDokuBez", "B"}, {"Part", "W:\\N.par"}});
    tabs_.chooseTab(0);
    EXPECT_NE(tree_.tree().find(nodes::IN_ASSEMBLY), nullptr);
    world_.boxes.answer(); // The share has no drive: told once for the row.
    tabs_.nextRow();
    EXPECT_EQ(world_.boxes.last().title, "Universalname nach Laufwerksnamen");
    EXPECT_EQ(tree_.tree().find(nodes::IN_ASSEMBLY), nullptr);
}

TEST_F(TreeTest, AnApostropheInANameIsAValueLikeAnyOther)
{
    addDocument(0, "O'Neill", "a'");
    row("ZusBauPart", {{"AssembDokuBez", "B"}, {"Part", documentPath("O'Neill_a'.par")}});
    tabs_.chooseTab(0);
    EXPECT_EQ(tree(), "Eigenschaften\n  Dateieigenschaften\nRevision\nSmartViewer\nEnthalten in Baugruppe\n");
}

} // namespace
} // namespace quelvarn
