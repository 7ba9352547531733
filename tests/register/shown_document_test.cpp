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
        page_.tabGewaehlt(0); // A b, A a, B 0
    }
    std::string below() const { return page_.dateinamePanel() + "|" + page_.statuskopf().text; }
    bool shown(Ansicht place) { return !bildschirm_.viewer.steht(place).empty(); }
};

TEST_F(ShownDocumentTest, BesideTheViewerTheWarningsAreThoseOfTheRow)
{
    page_.knotenGewaehlt(knoten::SMARTVIEWER);
    for (const bool newer : {true, false, false}) {
        page_.zeileVor();
        ASSERT_EQ(page_.infoSeite(), InfoSeite::Viewer);
        EXPECT_EQ(page_.allgemein().neuereRevision, newer) << session_.AktDoku.RevBez;
        EXPECT_EQ(page_.tree().gewaehlt, knoten::SMARTVIEWER);
    }
}

TEST_F(ShownDocumentTest, APageThatIsKeptHasItsNodeSelected)
{
    page_.tabGewaehlt(1);
    dokument(1, "T");
    page_.neuaufbauen();
    page_.knotenGewaehlt(knoten::DATEI);
    page_.zeileVor();
    EXPECT_EQ(page_.infoSeite(), InfoSeite::Datei);
    EXPECT_EQ(page_.tree().gewaehlt, knoten::DATEI);
}

TEST_F(ShownDocumentTest, TheViewerInPlaceOfTheTablesGoesWithItsDocument)
{
    const auto leaves = [&](const auto& what) {
        page_.tabGewaehlt(0);
        page_.anschauen(true);
        EXPECT_TRUE(page_.imViewer() && shown(Ansicht::Dokument));
        EXPECT_EQ(below(), "A_b.par|3 Status ");
        what();
        EXPECT_FALSE(page_.imViewer() || shown(Ansicht::Dokument));
    };
    leaves([&] { page_.anschauen(false); });
    leaves([&] { page_.zeileVor(); });
    page_.zeileGewaehlt(0);
    leaves([&] { page_.tabGewaehlt(1); });
    leaves([&] { page_.tabGewaehlt(5); }); // A table without rows, opened for it...
    leaves([&] { page_.tabGewaehlt(5); }); // ... and once more.
    leaves([&] { page_.datenbankWechselt(); });
}

TEST_F(ShownDocumentTest, AnschauenTellsTheStatusAlsoOfADocumentInWork)
{
    page_.zeileGewaehlt(1);
    EXPECT_EQ(below(), "A_a.par|<> 'In Arbeit'");
    page_.anschauen(true);
    EXPECT_EQ(below(), "A_a.par|1 Status ");
    page_.anschauen(false);
    EXPECT_EQ(below(), "A_a.par|<> 'In Arbeit'");
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
        page_.knotenGewaehlt(knoten::IN_BAUGRUPPE);
        page_.verwendung().zeileGewaehlt(0);
        ASSERT_EQ(below(), "G_0.asm|");
        page_.knotenGewaehlt(next);
        EXPECT_EQ(below(), "B_0.par|2 Status ") << next;
    }
}

} // namespace
} // namespace quelvarn
