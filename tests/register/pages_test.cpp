#include "database/sql/parser.h"
#include "register_fixture.h"

#include <tuple>

namespace quelvarn {
namespace {

using PagesTest = RegisterTest;

TEST_F(PagesTest, StatusHeadNamesWhoWorksOnIt)
{
    struct TestCase
    {
        std::int64_t status;
        const char* editor;
        const char* text;
        unsigned colour;
        bool wide;
    };
    const TestCase cases[] = {
        {0, "Meier", "0 Status ", 0x000000, false},   {1, "Meier", "<Meier> 'In Arbeit'", 0xFF0000, true},
        {1, "MUELLER", "1 Status ", 0xFF0000, false}, {2, "", "2 Status ", 0xFF00FF, false},
        {3, "", "3 Status ", 0x0000FF, false},        {4, "", "4 Status ", 0x00FFFF, false},
        {5, "", "5 Status ", 0x008080, false},        {7, "", "7 Status ", 0x008080, false}, // Keeps the colour.
    };
    int number = 0;
    for (const TestCase& testCase : cases)
        row("PartTabelle", {{"DokuBez", "S-" + std::to_string(number++)},
                            {"Status", testCase.status},
                            {"Bearbeiter", testCase.editor}});
    tabs_.chooseTab(0);
    for (const TestCase& testCase : cases) {
        SCOPED_TRACE(testCase.text);
        EXPECT_EQ(panels_.status().text, testCase.text);
        EXPECT_EQ(panels_.status().colour, testCase.colour);
        EXPECT_EQ(panels_.status().wide, testCase.wide);
        tabs_.nextRow();
    }
}

TEST_F(PagesTest, GeneralPageShowsTheRow)
{
    row("PartTabelle", {{"DokuBez", "P-1"},
                        {"filename", "W:\\Teile\\P-1.par"},
                        {"Status", 4},
                        {"Erstellt", DateTime::from({2004, 2, 9, 7, 5, 0})}});
    tabs_.chooseTab(0);
    const GeneralPage& page = info_.general();
    EXPECT_EQ(info_.page(), InfoPageId::General);
    EXPECT_EQ(page.Status + page.StatusName, "4(Festgeschr.)");
    EXPECT_EQ(page.Erstellt, "09.02.04");
    EXPECT_EQ(page.Geaendert, ""); // Null: no date is better than a wrong one.
    EXPECT_EQ(panels_.folder(), "W:\\Teile");
    EXPECT_TRUE(page.missing);
    world_.files.create("W:\\Teile\\P-1.par");
    tabs_.chooseRow(0);
    EXPECT_FALSE(page.missing);
}

TEST_F(PagesTest, GeneralPageTellsWhereTheDocumentIsUsed)
{
    const std::tuple<int, std::string, bool, std::string> cases[] = {
        {0, "verbunden", true, "Eingebaut:Ja Zeichnung:Ja"},
        {0, "frei", true, "Eingebaut:Nein Zeichnung:Nein"},
        {0, "verbunden", false, " "},
        {3, "verbunden", true, "Format:A2 Modell:Ja"},
        {3, "frei", true, " Modell:Nein"},
        {3, "verbunden", false, " "},
        {7, "verbunden", true, "Eingebaut:Ja Zeichnung:Ja"},
    };
    for (const int tab : {0, 3, 7}) {
        addDocument(tab, "frei");
        row(DOCUMENT_TYPES[tab].table, {{"DokuBez", "verbunden"}, {"RevBez", "0"}, {"filename", "W:\\v"}});
    }
    engine_->execute(sql::parseStatement("UPDATE DraftTabelle SET F_05_leer = 'A2' WHERE DokuBez = 'verbunden'"));
    row("ZusBauPart", {{"Part", "W:\\v"}});
    row("VerbindungDraftPart", {{"DokuBezDraft", "verbunden"}, {"RevBezDraft", "0"}, {"PfadAssembPart", "W:\\v"}});
    for (const auto& [tab, name, relation, text] : cases) {
        session_.Tree.Verwendung = relation;
        showDocument(tab, name);
        const GeneralPage& page = info_.general();
        EXPECT_EQ(page.heading8 + page.value9 + " " + page.heading39 + page.value40, text) << tab << name;
    }
}

TEST_F(PagesTest, OnlyOnePageOfATableStaysFromRowToRow)
{
    const std::pair<std::string_view, InfoPageId> clicks[] = {
        {nodes::FILE, InfoPageId::File},
        {nodes::STRUCTURE_FEATURES, InfoPageId::StructureFeatures},
        {nodes::USER_DEFINED, InfoPageId::UserDefined},
        {nodes::KEYWORDS, InfoPageId::StichKomm},
        {nodes::ZUSDOKU, InfoPageId::ZusDoku},
        {nodes::REVISION, InfoPageId::Revisions},
    };
    for (const int tab : {0, 1}) {
        const DocumentType& type = DOCUMENT_TYPES[tab];
        for (const char* revision : {"a", "b"}) {
            row(type.table, {{"DokuBez", "M"},
                             {"RevBez", revision},
                             {"filename", "W:\\m"},
                             {"Hauptmerkmal_A", "x"},
                             {"Stichwoerter", revision}});
            row(type.tableUserDef, {{"DokuBez", "M"}, {"RevBez", revision}, {"Name", "n"}});
        }
        row("VerbindungPartZusDoku", {{"Dokufilename", "W:\\m"}});
        tabs_.chooseTab(tab);
        const InfoPageId kept = tab == 0 ? InfoPageId::StichKomm : InfoPageId::File;
        for (const auto& [text, page] : clicks) {
            SCOPED_TRACE(text);
            info_.chooseNode(text);
            EXPECT_EQ(info_.page(), page);
            EXPECT_EQ(tree_.tree().chosen, text);
            tabs_.nextRow();
            // A click on a top node leaves what was kept before; none was by then.
            EXPECT_EQ(info_.page(), page == kept ? page : InfoPageId::General);
            EXPECT_EQ(info_.keywords().TextKeywords, session_.AktDoku.RevBez);
        }
        info_.chooseNode(kept == InfoPageId::File ? nodes::FILE : nodes::KEYWORDS);
        info_.chooseNode(nodes::PROPERTIES);
        tabs_.nextRow();
        EXPECT_EQ(info_.page(), InfoPageId::General);
        info_.chooseNode(kept == InfoPageId::File ? nodes::FILE : nodes::KEYWORDS);
        tabs_.chooseTab(tab); // forgets it
        EXPECT_EQ(info_.page(), InfoPageId::General);
    }
}

TEST_F(PagesTest, TheViewerFollowsTheRowsUntilItCannotShowOne)
{
    addDocument(0, "A");
    addDocument(0, "B");
    addDocument(0, "C");
    tabs_.chooseTab(0);
    viewers_.broken = {documentPath("C_0.par")};
    info_.chooseNode(nodes::SMARTVIEWER);
    EXPECT_EQ(info_.page(), InfoPageId::Viewer);
    tabs_.nextRow();
    EXPECT_EQ(info_.page(), InfoPageId::Viewer);
    EXPECT_EQ(viewers_.stands(ViewerPlace::Properties), documentPath("B_0.par"));
    world_.boxes.expect("Anzeigen im Viewer", "Die Datei:\n" + documentPath("C_0.par") +
                                                  "\nkonnte nicht geöffnet werden!\n\nMögliche Ursache:\n"
                                                  "- Falscher Pfad- und/oder Dateiname.\n- Kein Zugriffsrecht.");
    tabs_.nextRow();
    EXPECT_EQ(info_.page(), InfoPageId::General);
    EXPECT_EQ(info_.general().DokuBez, "C");
    tabs_.chooseRow(0);
    EXPECT_EQ(info_.page(), InfoPageId::General);
}

TEST_F(PagesTest, FilePageShowsAndSetsAttributes)
{
    addDocument(0, "A");
    addDocument(0, "B");
    world_.files.create(documentPath("A_0.par"), std::string(12345, 'x'));
    tabs_.chooseTab(0);
    info_.chooseNode(nodes::FILE);
    const FileProperties& file = info_.file();
    EXPECT_TRUE(file.exists);
    EXPECT_EQ(file.name, "A_0.par");
    EXPECT_EQ(file.folder, "W:\\Teile");
    EXPECT_EQ(file.size, "12.345 Bytes");
    EXPECT_EQ(file.created, "01.03.2004 08:30:00");

    info_.setReadOnly(true);
    info_.setArchive(true);
    EXPECT_TRUE(file.readOnly && file.archive);
    EXPECT_TRUE(world_.files.attribute(documentPath("A_0.par"))->readOnly);
    info_.setReadOnly(false);
    EXPECT_FALSE(file.readOnly);

    tabs_.nextRow();
    info_.chooseNode(nodes::FILE);
    EXPECT_FALSE(file.exists);
    EXPECT_EQ(file.name + file.size + file.created, "");
    info_.setReadOnly(true); // No file: nothing happens.
}

TEST_F(PagesTest, AnAttributeThatCannotBeWrittenIsTold)
{
    struct Locked : FakeFiles
    {
        using FakeFiles::FakeFiles;
        void setArchive(std::string_view, bool) override { throw RuntimeError(70, "Datei", "Zugriff verweigert"); }
    } files{world_.clock};
    addDocument(0, "A");
    files.create(documentPath("A_0.par"));
    Ports ports = world_.portsWith(files);
    Program program(session_, ports, viewers_);
    program.tabs.chooseTab(0);
    world_.boxes.expect("Dateieigenschaften", "Fehler beim Lesen der Dateieigenschaften!\nMögliche Ursache:\n"
                                              "Datei ist nicht vorhanden.");
    world_.boxes.answer();
    program.info.setArchive(true);
    EXPECT_FALSE(program.info.file().archive); // The box goes back to what the file says.
}

TEST_F(PagesTest, PdfOpensInItsApplication)
{
    addDocument(3, "Z");
    world_.files.create(documentPath("Z_0.pdf"));
    tabs_.chooseTab(3);
    info_.chooseNode(nodes::PDF);
    EXPECT_EQ(world_.defaultApplication.opened, std::vector<std::string>{documentPath("Z_0.pdf")});
    world_.files.remove(documentPath("Z_0.pdf"));
    world_.boxes.answer();
    info_.chooseNode(nodes::PDF);
    EXPECT_EQ(world_.boxes.last().title, "Im Verzeichnis nicht vorhanden");
}

TEST_F(PagesTest, ClosingRemembersTheTabOfFileTypesOnly)
{
    const auto startTable = [&] {
        Recordset rows;
        rows.Open("SELECT Feld3 FROM Ini WHERE Feld1 = 'Mueller' AND Feld2 = 'Starttabelle'",
                  session_.database.connection);
        return rows.Text("Feld3");
    };
    row("Ini", {{"Feld1", "Mueller"}, {"Feld2", "Starttabelle"}, {"Feld3", "Bauteile"}});
    for (const auto& [tab, expected] : {std::pair{2, "Baugruppen"}, std::pair{6, "Baugruppen"}, {4, "Schweißteile"}}) {
        tabs_.StartTabelleZeigen();
        tabs_.chooseTab(tab);
        page_.unload();
        EXPECT_EQ(startTable(), expected);
    }
    page_.unload(); // Closed already: nothing is written.
    EXPECT_EQ(tables_[4].state(), TableState::NotOpen);
}

} // namespace
} // namespace quelvarn
