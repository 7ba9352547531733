#include "database/sql/conditions.h"
#include "register/property_tree.h"
#include "register/relation_kinds.h"
#include "register/relation_page.h"
#include "register_fixture.h"

namespace quelvarn {
namespace {

class UsageTest : public RegisterTest
{
protected:
    UsageTest()
    {
        const auto connect = [&](const char* table, const char* column, const std::string& assembly,
                                 const std::string& file) {
            row(table, {{"AssembDokuBez", assembly},
                        {"AssembRevBez", "0"},
                        {"AssembDateiname", assembly + "_0.asm"},
                        {"Assembfilename", documentPath(assembly + "_0.asm")},
                        {column, documentPath(file)}});
        };
        addDocument(0, "P1", "0", 1);
        addDocument(0, "P2");
        addDocument(2, "G");
        addDocument(2, "U");
        addDocument(3, "Z");
        addDocument(4, "S");
        addDocument(6, "N"); // A standard part of the second special table.
        connect("ZusBauPart", "Part", "G", "P2_0.par");
        connect("ZusBauPart", "Part", "G", "P1_0.par");
        connect("ZusBauPart", "Part", "G", "P1_0.PAR"); // The same file.
        connect("ZusBauPart", "Part", "G", "N_0.par");
        connect("ZusBauPart", "Part", "G", "fehlt.stp");
        connect("ZusBauPart", "Part", "U", "P1_0.par");
        connect("ZusBauSubAss", "Subassembly", "G", "U_0.asm");
        row("VerbindungDraftPart", {{"DokuBezDraft", "Z"},
                                    {"RevBezDraft", "0"},
                                    {"DateinameDraft", "Z_0.dft"},
                                    {"filenameDraft", documentPath("Z_0.dft")},
                                    {"DateinameAssembPart", "P1_0.par"},
                                    {"PfadAssembPart", documentPath("P1_0.par")}});
        row("VerbindungWeldAssemb", {{"DokuBezWeld", "S"},
                                     {"RevBezWeld", "0"},
                                     {"DateinameWeld", "S_0.pwd"},
                                     {"filenameWeld", documentPath("S_0.pwd")},
                                     {"DateinameAssemb", "U_0.asm"},
                                     {"PfadAssemb", documentPath("U_0.asm")}});
    }

    void openPage(int tab, const std::string& DokuBez, std::string_view node)
    {
        showDocument(tab, DokuBez);
        info_.chooseNode(node);
    }

    std::string files()
    {
        std::string text;
        for (std::size_t i = 0; usage_.hasRows() && i < usage_.rows().RecordCount(); ++i)
            text += asText(usage_.rows().cell(i, usage_.kind()->fields.Dateiname)) + " ";
        return text;
    }

    void choose(const std::string& file)
    {
        std::size_t i = 0;
        while (asText(usage_.rows().cell(i, usage_.kind()->fields.Dateiname)) != file)
            ++i;
        usage_.rowChosen(i);
    }

    RelationPage& usage_ = info_.relation();
};

TEST_F(UsageTest, EachPageListsItsDocumentsOnceAndTellsOfTheFirst)
{
    struct TestCase
    {
        int tab;
        const char* document;
        std::string_view node;
        const char* files;
        const char* first;
    };
    for (const TestCase& testCase :
         {TestCase{0, "P1", nodes::IN_ASSEMBLY, "G_0.asm U_0.asm ", "G"},
          TestCase{2, "U", nodes::IN_ASSEMBLY, "G_0.asm ", "G"}, TestCase{0, "P1", nodes::IN_DRAWING, "Z_0.dft ", "Z"},
          TestCase{2, "U", nodes::IN_WELDMENT, "S_0.pwd ", "S"},
          TestCase{2, "G", nodes::CONSISTS_OF, "fehlt.stp N_0.par P1_0.par P2_0.par U_0.asm ", ""},
          TestCase{3, "Z", nodes::CONTAINS, "P1_0.par ", "P1"},
          TestCase{4, "S", nodes::CONTAINS_ASSEMBLY, "U_0.asm ", "U"}}) {
        openPage(testCase.tab, testCase.document, testCase.node);
        EXPECT_EQ(files(), testCase.files) << testCase.node;
        EXPECT_EQ(usage_.details().DokuBez, testCase.first) << testCase.node;
        tabs_.chooseRow(0);
        EXPECT_EQ(usage_.kind(), nullptr) << "a page is that of one row";
    }
}

TEST_F(UsageTest, AComponentIsFoundInItsTableOrInASpecialOne)
{
    openPage(2, "G", nodes::CONSISTS_OF);
    EXPECT_TRUE(usage_.details().empty);
    EXPECT_FALSE(usage_.usable()); // No table for this ending.
    choose("N_0.par");
    EXPECT_EQ(usage_.SondertabelleNr(), 2);
    EXPECT_EQ(usage_.details().StatusName, "(Freigegeben)");
    choose("P1_0.par");
    EXPECT_EQ(usage_.SondertabelleNr(), 0);
    EXPECT_EQ(usage_.details().StatusName, "(In Arbeit)");
    EXPECT_EQ(panels_.fileName() + "|" + panels_.folder() + "|" + panels_.status().text, "P1_0.par|W:\\Teile|");
}

TEST_F(UsageTest, OutsideTheStatusScopeAComponentIsTolerantlyShownAndOthersAreNot)
{
    seesStatuses("3");
    world_.files.create(documentPath("P1_0.par"));
    openPage(2, "G", nodes::CONSISTS_OF);
    usage_.setGraphic(false);
    const std::string status = "ACHTUNG!\nBestandteile der Baugruppe haben einen\nanderen Status als die Baugruppe.";
    world_.boxes.expect("Status der Baugruppe", status);
    choose("P1_0.par");
    usage_.setGraphic(true);
    EXPECT_EQ(viewers_.stands(ViewerPlace::ConsistsOf), documentPath("P1_0.par"));
    EXPECT_TRUE(usage_.showsPreview());
    usage_.setGraphic(false);
    EXPECT_EQ(viewers_.stands(ViewerPlace::ConsistsOf), "");
    const auto no = [](const std::string& toUnfold) {
        return "ACHTUNG!\nSie haben " + toUnfold + " keine Zugriffsberechtigung.";
    };
    world_.boxes.expect("Keine Zugriffsberechtigung", no("auf dieses Teil der Baugruppe"));
    usage_.openInViewer();
    choose("N_0.par"); // Special tables have no scope: no box.

    openPage(3, "Z", nodes::CONTAINS);
    world_.boxes.expect("Keine Zugriffsberechtigung", no("auf dieses Modell der Zeichnung"));
    usage_.setGraphic(true);
    EXPECT_FALSE(usage_.showsPreview());
}

TEST_F(UsageTest, AnUnreadableFileLeavesTheDetails)
{
    openPage(0, "P1", nodes::IN_ASSEMBLY);
    const std::string box = "Die Datei:\n" + documentPath("G_0.asm") +
                            "\nkonnte nicht geöffnet werden!\nMögliche Ursache:\n"
                            "- Falscher Pfad- und/oder Dateiname.\n- Kein Zugriffsrecht.";
    world_.boxes.expect("Anzeigen im Viewer", box);
    usage_.openInViewer();
    EXPECT_FALSE(usage_.showsPreview() || usage_.ChViewGrafik());
    world_.files.create(documentPath("G_0.asm"));
    usage_.openInViewer();
    EXPECT_TRUE(usage_.showsPreview() && usage_.ChViewGrafik());
    world_.boxes.answer(); // The next row has no file.
    usage_.rowChosen(1);
    EXPECT_FALSE(usage_.showsPreview());
    EXPECT_EQ(viewers_.stands(ViewerPlace::InAssembly), "");
}

TEST_F(UsageTest, TheToolBarActsOnTheRow)
{
    const auto favourites = [&](const char* type) {
        Recordset rows;
        rows.Open(sql::Query("Ini").where(sql::all(sql::equal("Feld2", "Favoriten"), sql::equal("Feld3", type))),
                  session_.database.connection);
        return rows.empty() ? std::string() : rows.Text("Feld4") + "/" + rows.Text("Feld5");
    };
    openPage(2, "G", nodes::CONSISTS_OF);
    usage_.pathToClipboard(); // "fehlt.stp" belongs to no table: nothing happens.
    actions_.goToTable();
    EXPECT_EQ(world_.clipboard.text(), "");
    choose("P2_0.par");
    usage_.pathToClipboard();
    EXPECT_EQ(world_.clipboard.text(), documentPath("P2_0.par"));
    actions_.addToFavourites();
    EXPECT_EQ(favourites("Part"), "P2/0");
    choose("N_0.par");
    actions_.addToFavourites();
    EXPECT_EQ(favourites("STbl2"), "N/0");

    session_.database.connection.execute("DELETE FROM AssembTabelle WHERE DokuBez = 'U'");
    choose("U_0.asm");
    world_.boxes.expect("Favoriten", "Der Eintrag bei Favoriten konnte\nnicht erfolgreich durchgeführt werden!\n"
                                     "Mögliche Ursache:\n- Datei ist in der Tabelle nicht vorhanden.\n"
                                     "- Es ist ein <Neuaufbau> erforderlich.\n- Falscher Pfad-/Dateiname.");
    actions_.addToFavourites();
}

} // namespace
} // namespace quelvarn
