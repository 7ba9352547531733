// What tells of the document shown stays true when the row, the page beside it or the table changes.
#include "register_fixture.h"

#include <string>

namespace quelvarn {
namespace {

class ShownDocumentTest : public RegisterTest
{
protected:
    ShownDocumentTest()
    {
        addDocument(0, "A", "a", 1);
        addDocument(0, "A", "b", 3);
        addDocument(0, "B", "0", 2);
        addDocument(1, "S", "0", 5);
        tabs_.chooseTab(0); // A b, A a, B 0
    }
    std::string below() const { return panels_.fileName() + "|" + panels_.status().text; }
    bool shown(ViewerPlace place) { return !viewers_.stands(place).empty(); }
};

TEST_F(ShownDocumentTest, BesideTheViewerTheWarningsAreThoseOfTheRow)
{
    info_.chooseNode(nodes::SMARTVIEWER);
    for (const bool newer : {true, false, false}) {
        tabs_.nextRow();
        ASSERT_EQ(info_.page(), InfoPageId::Viewer);
        EXPECT_EQ(info_.general().newerRevision, newer) << session_.AktDoku.RevBez;
        EXPECT_EQ(tree_.tree().chosen, nodes::SMARTVIEWER);
    }
}

TEST_F(ShownDocumentTest, APageThatIsKeptHasItsNodeSelected)
{
    tabs_.chooseTab(1);
    addDocument(1, "T");
    tabs_.rebuild();
    info_.chooseNode(nodes::FILE);
    tabs_.nextRow();
    EXPECT_EQ(info_.page(), InfoPageId::File);
    EXPECT_EQ(tree_.tree().chosen, nodes::FILE);
}

TEST_F(ShownDocumentTest, TheViewerInPlaceOfTheTablesGoesWithItsDocument)
{
    const auto leaves = [&](const auto& what) {
        tabs_.chooseTab(0);
        viewer_.showDocument(true);
        EXPECT_TRUE(viewer_.isInFront() && shown(ViewerPlace::Document));
        EXPECT_EQ(below(), "A_b.par|3 Status ");
        what();
        EXPECT_FALSE(viewer_.isInFront() || shown(ViewerPlace::Document));
    };
    leaves([&] { viewer_.showDocument(false); });
    leaves([&] { tabs_.nextRow(); });
    tabs_.chooseRow(0);
    leaves([&] { tabs_.chooseTab(1); });
    leaves([&] { tabs_.chooseTab(5); }); // A table without rows, opened for it...
    leaves([&] { tabs_.chooseTab(5); }); // ... and once more.
    leaves([&] { page_.databaseChanges(); });
}

TEST_F(ShownDocumentTest, ViewingTellsTheStatusAlsoOfADocumentInWork)
{
    tabs_.chooseRow(1);
    EXPECT_EQ(below(), "A_a.par|<> 'In Arbeit'");
    viewer_.showDocument(true);
    EXPECT_EQ(below(), "A_a.par|1 Status ");
    viewer_.showDocument(false);
    EXPECT_EQ(below(), "A_a.par|<> 'In Arbeit'");
    viewer_.showTemplate(documentPath("V.dft")); // A template has a status that nobody has read.
    EXPECT_EQ(below(), "V.dft|");
    viewer_.showDocument(false);
    EXPECT_EQ(below(), "A_a.par|<> 'In Arbeit'");
}

TEST_F(ShownDocumentTest, WhereTheViewerCannotShowTheFileThePageInsteadIsSelected)
{
    viewers_.broken = {documentPath("A_b.par")};
    world_.boxes.answer();
    info_.chooseNode(nodes::SMARTVIEWER);
    EXPECT_EQ(info_.page(), InfoPageId::General);
    EXPECT_EQ(tree_.tree().chosen, nodes::PROPERTIES);
}

TEST_F(ShownDocumentTest, BehindAPageOfComponentsTheStatusBarTellsOfTheDocumentAgain)
{
    row("ZusBauPart", {{"AssembDokuBez", "G"},
                       {"AssembRevBez", "0"},
                       {"AssembDateiname", "G_0.asm"},
                       {"Assembfilename", documentPath("G_0.asm")},
                       {"Part", documentPath("B_0.par")}});
    showDocument(0, "B");
    for (const std::string_view next : {nodes::PROPERTIES, nodes::FILE, nodes::SMARTVIEWER}) {
        info_.chooseNode(nodes::IN_ASSEMBLY);
        info_.relation().rowChosen(0);
        ASSERT_EQ(below(), "G_0.asm|");
        info_.chooseNode(next);
        EXPECT_EQ(below(), "B_0.par|2 Status ") << next;
    }
}

} // namespace
} // namespace quelvarn
