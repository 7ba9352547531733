#include "register/document_jump.h"
#include "register/relation_page.h"
#include "register_fixture.h"

namespace quelvarn {
namespace {

// Jumps between parts, assemblies, drawings and the second special table; each table has three documents.
class JumpTest : public RegisterTest
{
protected:
    JumpTest()
    {
        for (const int tab : {0, 2, 3, 6})
            for (const char* name : {"A", "B", "C"})
                addDocument(tab, name);
        tabs_.chooseTab(0);
    }

    bool jump(int tab, const std::string& file)
    {
        const DocumentType& type = DOCUMENT_TYPES[static_cast<std::size_t>(tab)];
        return tab == 3 ? sprung_.ZeichnungZeigen(documentPath(file))
                        : sprung_.ZuDokumentWechseln(type, documentPath(file));
    }
    static std::string fileOf(int tab, const std::string& name)
    {
        return name + (tab == 2 ? "_0.asm" : tab == 3 ? "_0.dft" : "_0.par");
    }
    void asksRebuild(int tab, Answer answer)
    {
        world_.boxes.expect("Neuaufbau der Tabelle durchführen?",
                            std::string(tab == 3 ? "Die Zeichnung" : "Das Modell") +
                                " ist in der Tabelle nicht vorhanden!\nSoll ein 'Neuaufbau' durchgeführt werden?",
                            answer);
    }
    std::string place() { return std::to_string(tables_.tab()) + session_.AktDoku.DokuBez; }

    DocumentJump& sprung_ = program_.jump;
};

TEST_F(JumpTest, AnUnopenedTableIsOpenedAndADocumentIsFoundByItsWholePath)
{
    for (const int tab : {2, 3, 6, 0}) {
        EXPECT_TRUE(jump(tab, fileOf(tab, "B"))) << tab;
        EXPECT_EQ(place(), std::to_string(tab) + "B");
    }
    addDocument(0, "A1", "0");
    session_.database.connection.execute("UPDATE PartTabelle SET filename = 'W:\\Teile\\B_0.parx' WHERE DokuBez = 'A'");
    tabs_.rebuild();
    EXPECT_TRUE(jump(0, "B_0.par")); // Not the longer path in the row before.
    EXPECT_EQ(place(), "0B");
}

TEST_F(JumpTest, ADocumentIsFoundByEachOfItsPathsWhateverItsNameAndItsTwins)
{
    Connection& database = session_.database.connection;
    database.execute(
        "UPDATE PartTabelle SET filename = '\\\\server\\konstruktion\\Teile\\B_0.par' WHERE DokuBez = 'B'");
    tabs_.rebuild();
    EXPECT_TRUE(jump(0, "B_0.par")); // Stored by the share that W: stands for.
    EXPECT_EQ(place(), "0B");
    EXPECT_TRUE(sprung_.ZuDokumentWechseln(DOCUMENT_TYPES[2], "\\\\server\\konstruktion\\Teile\\C_0.asm"));
    EXPECT_EQ(place(), "2C"); // Stored by the letter.

    database.execute("UPDATE DraftTabelle SET DokuBez = Null, RevBez = Null WHERE DokuBez = 'B'");
    tabs_.chooseTab(3);
    tabs_.rebuild();
    tabs_.chooseRow(2);
    tabs_.chooseTab(0);
    EXPECT_TRUE(jump(3, "B_0.dft"));
    EXPECT_EQ(session_.AktDoku.filename, documentPath("B_0.dft"));

    row("PartTabelle", {{"DokuBez", "A9"}, {"RevBez", "0"}, {"filename", documentPath("twice.par")}, {"Status", 0}});
    row("PartTabelle", {{"DokuBez", "D"}, {"RevBez", "0"}, {"filename", documentPath("twice.par")}, {"Status", 3}});
    seesStatuses("3");
    tabs_.chooseTab(0);
    tabs_.rebuild();
    EXPECT_TRUE(jump(0, "twice.par")); // The one that may be seen.
    EXPECT_EQ(place(), "0D");
}

TEST_F(JumpTest, AFilterIsKeptOrLiftedAsAnswered)
{
    for (const int tab : {2, 3, 6}) {
        filter(tab, "DokuBez = 'B'");
        expectFilterQuestion(tab, Answer::No);
        EXPECT_TRUE(jump(tab, fileOf(tab, "B")));
        EXPECT_EQ(tables_.current().state(), TableState::Filtered);

        tabs_.chooseTab(0);
        expectFilterQuestion(tab, Answer::No); // Kept, and it hides the document.
        asksRebuild(tab, Answer::No);
        EXPECT_FALSE(jump(tab, fileOf(tab, "C")));
        EXPECT_EQ(place(), std::to_string(tab) + "B") << "the place in the table is kept";

        expectFilterQuestion(tab, Answer::Yes);
        EXPECT_TRUE(jump(tab, fileOf(tab, "C")));
        EXPECT_EQ(place(), std::to_string(tab) + "C");
        EXPECT_EQ(list(), "A/0 B/0 C/0 ");
    }
}

TEST_F(JumpTest, ADocumentThatIsNewerThanItsTableNeedsARebuild)
{
    for (const int tab : {2, 3, 6}) {
        tabs_.chooseTab(tab);
        tabs_.chooseRow(1);
        tabs_.chooseTab(0);
        addDocument(tab, "D");
        const std::string fresh = fileOf(tab, "D");
        if (tab == 3) {
            asksRebuild(tab, Answer::Cancel);
            EXPECT_FALSE(jump(tab, fresh));
            EXPECT_EQ(place(), "0A");
        }
        asksRebuild(tab, Answer::No);
        EXPECT_FALSE(jump(tab, fresh));
        EXPECT_EQ(place(), std::to_string(tab) + "B");
        asksRebuild(tab, Answer::Yes);
        EXPECT_TRUE(jump(tab, fresh));
        EXPECT_EQ(place(), std::to_string(tab) + "D");
        EXPECT_EQ(list(), "A/0 B/0 C/0 D/0 ");
    }
}

TEST_F(JumpTest, ADocumentThatMayNotBeSeenStaysHidden)
{
    addDocument(2, "G", "0", 0);
    seesStatuses("3");
    tabs_.chooseTab(2);
    tabs_.chooseRow(2);
    tabs_.chooseTab(0);
    asksRebuild(2, Answer::Yes);
    world_.boxes.expect("Suchergebnis", "Datei ist in der Tabelle nicht vorhanden!\n"
                                        "es ist ein <Neuaufbau> erforderlich.\noder\n"
                                        "Sie haben keine Zugriffsberechtigung.");
    EXPECT_FALSE(jump(2, "G_0.asm"));
    EXPECT_EQ(place(), "2C");
}

TEST_F(JumpTest, ADoubleClickOpensTheDocumentWhenItWasFound)
{
    int edited = 0;
    program_.frame.setAction(Tool::Edit, [&] { ++edited; });
    for (const char* part : {"A_0.par", "S_0.par"})
        row("ZusBauPart", {{"AssembDokuBez", "A"}, {"AssembRevBez", "0"}, {"Part", documentPath(part)}});
    addDocument(6, "S");
    RelationPage& usage = info_.relation();
    showDocument(2, "A");
    info_.chooseNode("Besteht aus");
    world_.boxes.expect("Im Verzeichnis nicht vorhanden", fileMissing(documentPath("A_0.par")));
    actions_.open();
    world_.files.create(documentPath("A_0.par"));
    world_.files.create(documentPath("S_0.par"));
    usage.rowChosen(1);
    world_.boxes.expect(
        "Bearbeiten der Dokumente in den Sondertabellen",
        "Für die Bearbeitung der Dokumente in den Sondertabellen ist eine besondere Arbeitsweise erfoderlich!\n"
        "Der Doppelklick zum Öffnen der Solid Edge-Datei wird daher an dieser Stelle nicht unterstützt.\n"
        "Wenden Sie sich an ihren Systemadministrator für Quelvarnis.");
    actions_.open();
    EXPECT_EQ(edited, 0);
    EXPECT_EQ(tables_.tab(), 2);
    usage.rowChosen(0);
    actions_.open();
    EXPECT_EQ(edited, 1);
    EXPECT_EQ(place(), "0A");

    showDocument(2, "A");
    info_.chooseNode("Besteht aus");
    usage.rowChosen(1);
    actions_.goToTable();
    EXPECT_EQ(place(), "6S");
    EXPECT_EQ(edited, 1);
}

} // namespace
} // namespace quelvarn
