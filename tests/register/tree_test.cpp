#include "register_fixture.h"

#include <tuple>

namespace quelvarn {
namespace {

class TreeTest : public RegisterTest
{
protected:
    // D/b of the table stands in every relation that a document can have; D/c is its newer revision.
    void legeVerbundenesAn(int tab)
    {
        const DokuTyp& typ = DOKUTYPEN[tab];
        const std::string endung(typ.endung.empty() ? "par" : typ.endung);
        const std::string datei = pfad("D_b." + endung);
        zeile(typ.tabelle, {{"DokuBez", "D"},
                            {"RevBez", "b"},
                            {"Dateiname", "D_b." + endung},
                            {"filename", datei},
                            {"Status", 3},
                            {"Hauptmerkmal_B", "Welle"},
                            {"Kommentar", "gehärtet"}});
        dokument(tab, "D", "c");
        zeile("ZusBauPart", {{"AssembDokuBez", "B"}, {"Part", datei}});
        zeile("ZusBauSubAss", {{"AssembDokuBez", "B"}, {"Subassembly", datei}});
        zeile("VerbindungDraftPart",
              {{"DokuBezDraft", "D"}, {"RevBezDraft", "b"}, {"filenameDraft", "x"}, {"PfadAssembPart", datei}});
        zeile("VerbindungWeldAssemb", {{"DokuBezWeld", "D"}, {"RevBezWeld", "b"}, {"PfadAssemb", datei}});
        zeile("VerbindungPartZusDoku", {{"Dokufilename", datei}, {"ZusDokufilename", "W:\\a.doc"}});
        zeile("TIFFTabelle", {{"Dateiname", "D_b.tif"}, {"filename", "W:\\Tiff\\D_b.tif"}});
        welt_.dateien.legeAn(pfad("D_b.pdf"));
        zeile("Adresstabelle", {{"Kennung", "Kunde 7"}, {"Name", "Ort"}, {"Wert", "Ulm"}});
        zeile(typ.tabelleBenutzDef, {{"DokuBez", "D"}, {"RevBez", "b"}, {"Name", "Gewicht"}, {"Wert", "7"}});
        zeile(typ.tabelleBenutzDef, {{"DokuBez", "D"}, {"RevBez", "b"}, {"Name", "KUNDE 7"}, {"Wert", "W:\\v"}});
    }
};

const std::string KINDER = "Eigenschaften\n"
                           "  Dateieigenschaften\n"
                           "  Hauptmerkmale / -werte\n"
                           "  Benutzerdef. Eigenschaften\n"
                           "  Versendet an\n"
                           "  Stichwörter / Kommentar\n"
                           "  Zusätzl. Dokumente\n"
                           "Revision!\n"
                           "SmartViewer\n";
const std::string KINDER_SONDERTABELLE = "Eigenschaften\n"
                                         "  Dateieigenschaften\n"
                                         "  Hauptmerkmale / -werte\n"
                                         "  Benutzerdef. Eigenschaften\n"
                                         "  Stichwörter / Kommentar\n"
                                         "SmartViewer\n";
const std::string ENTHALTEN = "Enthalten in Baugruppe\nEnthalten in Zeichnung\n";
const std::string NICHTS = "Eigenschaften\n  Dateieigenschaften\nSmartViewer\n";

TEST_F(TreeTest, ShowsANodeForEachRelationThatItsTypeKnows)
{
    const std::string erwartet[] = {
        KINDER + ENTHALTEN,
        KINDER + ENTHALTEN,
        KINDER + ENTHALTEN + "Enthalten in Schweißteil\nBesteht aus\n",
        KINDER + "TIFF-Dokument\nPDF-Dokument\nEnthält\n",
        KINDER + ENTHALTEN + "Enthält Baugruppe\n",
        KINDER_SONDERTABELLE + ENTHALTEN,
        KINDER_SONDERTABELLE + ENTHALTEN,
        KINDER_SONDERTABELLE + ENTHALTEN,
    };
    for (const DokuTyp& typ : DOKUTYPEN) {
        SCOPED_TRACE(typ.tabelle);
        legeVerbundenesAn(typ.tab);
        zeigeDokument(typ.tab, "D", "b");
        EXPECT_EQ(baum(), erwartet[typ.tab]);
    }
}

TEST_F(TreeTest, ShowsNoNodeWithoutItsRelation)
{
    for (const DokuTyp& typ : DOKUTYPEN) {
        SCOPED_TRACE(typ.tabelle);
        dokument(typ.tab, "E");
        tabs_.chooseTab(typ.tab);
        EXPECT_EQ(baum(), typ.schluessel == "Assemb" ? NICHTS + "Besteht aus\n" : NICHTS);
    }
}

TEST_F(TreeTest, EachSwitchHidesItsNodesOnly)
{
    const std::tuple<int, bool Baumschalter::*, std::string> faelle[] = {
        {0, &Baumschalter::Verwendung, ENTHALTEN},
        {0, &Baumschalter::Revision, "Revision!\n"},
        {0, &Baumschalter::HauptMerk, "  Hauptmerkmale / -werte\n"},
        {0, &Baumschalter::BenutzDef, "  Benutzerdef. Eigenschaften\n"},
        {0, &Baumschalter::Versendet, "  Versendet an\n"},
        {0, &Baumschalter::StichKomm, "  Stichwörter / Kommentar\n"},
        {0, &Baumschalter::ZusDoku, "  Zusätzl. Dokumente\n"},
        {2, &Baumschalter::Verwendung, ENTHALTEN + "Enthalten in Schweißteil\nBesteht aus\n"},
        {3, &Baumschalter::TIFFDoku, "TIFF-Dokument\n"},
        {3, &Baumschalter::PDFDoku, "PDF-Dokument\n"},
        {3, &Baumschalter::Verwendung, "Enthält\n"},
    };
    for (const int tab : {0, 2, 3})
        legeVerbundenesAn(tab);
    for (const auto& [tab, schalter, fehlt] : faelle) {
        session_.Tree = {};
        zeigeDokument(tab, "D", "b");
        std::string erwartet = baum();
        ASSERT_NE(erwartet.find(fehlt), std::string::npos) << fehlt;
        erwartet.erase(erwartet.find(fehlt), fehlt.size());
        session_.Tree.*schalter = false;
        page_.baumschalterGeaendert();
        EXPECT_EQ(baum(), erwartet) << fehlt;
    }
}

TEST_F(TreeTest, WithoutOpenNodesTheChildrenComeOnceOnTheFirstExpand)
{
    legeVerbundenesAn(0);
    session_.Tree.Knoten = false;
    zeigeDokument(0, "D", "b");
    const std::string oben = "Revision!\nSmartViewer\n" + ENTHALTEN;
    EXPECT_EQ(baum(), "Eigenschaften\n  Dateieigenschaften\n" + oben);
    EXPECT_FALSE(tree_.tree().wurzeln.front().offen);
    for (int mal = 0; mal < 2; ++mal) {
        tree_.unfold();
        EXPECT_EQ(baum(), KINDER + ENTHALTEN);
    }
    tabs_.chooseRow(0);
    tree_.unfold();
    EXPECT_EQ(session_.AktDoku.RevBez, "c");
    EXPECT_EQ(baum(), "Eigenschaften\n  Dateieigenschaften\nRevision\nSmartViewer\n");
}

TEST_F(TreeTest, RevisionNodeTellsOfFurtherRevisions)
{
    const std::tuple<std::vector<std::string>, std::string, std::string> faelle[] = {
        {{"0"}, "0", ""},         {{"0", "a"}, "0", "Revision!"}, {{"0", "a"}, "a", "Revision"},
        {{"a"}, "a", "Revision"}, {{"a", "B"}, "a", "Revision!"}, {{"9", "10"}, "9", "Revision"}, // Text order.
    };
    int nummer = 0;
    for (const auto& [revisionen, gezeigt, knoten] : faelle) {
        const std::string DokuBez = "R-" + std::to_string(nummer++);
        for (const std::string& revision : revisionen)
            dokument(1, DokuBez, revision);
        zeigeDokument(1, DokuBez, gezeigt);
        EXPECT_EQ(baum(),
                  "Eigenschaften\n  Dateieigenschaften\n" + knoten + (knoten.empty() ? "" : "\n") + "SmartViewer\n");
        EXPECT_EQ(info_.general().neuereRevision, knoten.ends_with('!'));
    }
}

TEST_F(TreeTest, MainFeaturesCountByTheirSumAndTheFirstThree)
{
    zeile("PartTabelle", {{"Hauptmerkmal_D", "Bolzen"}});
    zeile("PartTabelle", {{"Hauptmerkmal_C", "Bolzen"}});
    zeile("PartTabelle", {{"Hauptwert_a", 2.5}, {"Hauptwert_g", -2.5}});
    zeile("PartTabelle", {{"Hauptwert_g", 0.5}});
    tabs_.chooseTab(0);
    for (const bool erwartet : {false, true, false, true}) {
        EXPECT_EQ(tree_.tree().finde(knoten::HAUPTMERKMALE) != nullptr, erwartet);
        tabs_.nextRow();
    }
}

TEST_F(TreeTest, FindsRegisteredAndNeighbouringTiffs)
{
    dokument(3, "A"); // registered, though the file is gone
    zeile("TIFFTabelle", {{"Dateiname", "A_0.TIF"}, {"filename", "W:\\Tiff\\A_0.tif"}});
    dokument(3, "B"); // beside the drawing
    welt_.dateien.legeAn(pfad("B_0.tif"));
    dokument(3, "C");
    tabs_.chooseTab(3);
    for (const bool erwartet : {true, true, false}) {
        EXPECT_EQ(tree_.tree().finde(knoten::TIFF) != nullptr, erwartet) << session_.AktDoku.DokuBez;
        tabs_.nextRow();
    }
}

TEST_F(TreeTest, WhereUsedIsAskedByTheDrivePathOfANetworkPath)
{
    zeile("PartTabelle", {{"DokuBez", "N"}, {"filename", "\\\\server\\konstruktion\\N.par"}});
    zeile("PartTabelle", {{"DokuBez", "O"}, {"filename", "\\\\fremd\\weg\\O.par"}});
    zeile("ZusBauPart", {{"AssembDokuBez", "B"}, {"Part", "W:\\N.par"}});
    tabs_.chooseTab(0);
    EXPECT_NE(tree_.tree().finde(knoten::IN_BAUGRUPPE), nullptr);
    welt_.meldungen.antworte(); // The share has no drive: told once for the row.
    tabs_.nextRow();
    EXPECT_EQ(welt_.meldungen.letzte().titel, "Universalname nach Laufwerksnamen");
    EXPECT_EQ(tree_.tree().finde(knoten::IN_BAUGRUPPE), nullptr);
}

TEST_F(TreeTest, AnApostropheInANameIsAValueLikeAnyOther)
{
    dokument(0, "O'Neill", "a'");
    zeile("ZusBauPart", {{"AssembDokuBez", "B"}, {"Part", pfad("O'Neill_a'.par")}});
    tabs_.chooseTab(0);
    EXPECT_EQ(baum(), "Eigenschaften\n  Dateieigenschaften\nRevision\nSmartViewer\nEnthalten in Baugruppe\n");
}

} // namespace
} // namespace quelvarn
