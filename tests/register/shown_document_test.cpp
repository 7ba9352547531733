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
        dokument(0, "A", "a", 1);
        dokument(0, "A", "b", 3);
        dokument(0, "B", "0", 2);
        dokument(1, "S", "0", 5);
        tabs_.chooseTab(0); // A b, A a, B 0
    }
    std::string below() const { return panels_.fileName() + "|" + panels_.status().text; }
    bool shown(Ansicht place) { return !viewers_.steht(place).empty(); }
};

TEST_F(ShownDocumentTest, BesideTheViewerTheWarningsAreThoseOfTheRow)
{
    info_.chooseNode(knoten::SMARTVIEWER);
    for (const bool newer : {true, false, false}) {
        tabs_.nextRow();
        ASSERT_EQ(info_.page(), InfoSeite::Viewer);
        EXPECT_EQ(info_.general().neuereRevision, newer) << session_.AktDoku.RevBez;
        EXPECT_EQ(tree_.tree().gewaehlt, knoten::SMARTVIEWER);
    }
}

TEST_F(ShownDocumentTest, APageThatIsKeptHasItsNodeSelected)
{
    tabs_.chooseTab(1);
    dokument(1, "T");
    tabs_.rebuild();
    info_.chooseNode(knoten::DATEI);
    tabs_.nextRow();
    EXPECT_EQ(info_.page(), InfoSeite::Datei);
    EXPECT_EQ(tree_.tree().gewaehlt, knoten::DATEI);
}

TEST_F(ShownDocumentTest, TheViewerInPlaceOfTheTablesGoesWithItsDocument)
{
    const auto leaves = [&](const auto& what) {
        tabs_.chooseTab(0);
        viewer_.showDocument(true);
        EXPECT_TRUE(viewer_.isInFront() && shown(Ansicht::Dokument));
        EXPECT_EQ(below(), "A_b.par|3 Status ");
        what();
        EXPECT_FALSE(viewer_.isInFront() || shown(Ansicht::Dokument));
    };
    leaves([&] { viewer_.showDocument(false); });
    leaves([&] { tabs_.nextRow(); });
    tabs_.chooseRow(0);
    leaves([&] { tabs_.chooseTab(1); });
    leaves([&] { tabs_.chooseTab(5); }); // A table without rows, opened for it...
    leaves([&] { tabs_.chooseTab(5); }); // ... and once more.
    leaves([&] { page_.datenbankWechselt(); });
}

TEST_F(ShownDocumentTest, AnschauenTellsTheStatusAlsoOfADocumentInWork)
{
    tabs_.chooseRow(1);
    EXPECT_EQ(below(), "A_a.par|<> 'In Arbeit'");
    viewer_.showDocument(true);
    EXPECT_EQ(below(), "A_a.par|1 Status ");
    viewer_.showDocument(false);
    EXPECT_EQ(below(), "A_a.par|<> 'In Arbeit'");
    viewer_.showTemplate(pfad("V.dft")); // A template has a status that nobody has read.
    EXPECT_EQ(below(), "V.dft|");
    viewer_.showDocument(false);
    EXPECT_EQ(below(), "A_a.par|<> 'In Arbeit'");
}

TEST_F(ShownDocumentTest, WhereTheViewerCannotShowTheFileThePageInsteadIsSelected)
{
    viewers_.kaputt = {pfad("A_b.par")};
    welt_.meldungen.antworte();
    info_.chooseNode(knoten::SMARTVIEWER);
    EXPECT_EQ(info_.page(), InfoSeite::Allgemein);
    EXPECT_EQ(tree_.tree().gewaehlt, knoten::EIGENSCHAFTEN);
}

TEST_F(ShownDocumentTest, BehindAPageOfComponentsTheStatusBarTellsOfTheDocumentAgain)
{
    zeile("ZusBauPart", {{"AssembDokuBez", "G"},
                         {"AssembRevBez", "0"},
                         {"AssembDateiname", "G_0.asm"},
                         {"Assembfilename", pfad("G_0.asm")},
                         {"Part", pfad("B_0.par")}});
    zeigeDokument(0, "B");
    for (const std::string_view next : {knoten::EIGENSCHAFTEN, knoten::DATEI, knoten::SMARTVIEWER}) {
        info_.chooseNode(knoten::IN_BAUGRUPPE);
        info_.relation().zeileGewaehlt(0);
        ASSERT_EQ(below(), "G_0.asm|");
        info_.chooseNode(next);
        EXPECT_EQ(below(), "B_0.par|2 Status ") << next;
    }
}

} // namespace
} // namespace quelvarn
