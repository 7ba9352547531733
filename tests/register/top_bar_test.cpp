#include "register/top_bar.h"
#include "register_fixture.h"

namespace quelvarn {

class TopBarTest : public RegisterTest
{
protected:
    // A document whose file is there.
    void present(int tab, const std::string& DokuBez)
    {
        addDocument(tab, DokuBez);
        world_.files.create(documentPath(DokuBez + "_0." + std::string(DOCUMENT_TYPES[tab].extension)));
    }
    void paste(const std::string& text)
    {
        world_.clipboard.content = text;
        bar_.click("Pfad aus ZwSp");
    }

    TopBar& bar_ = program_.topBar;
};

std::string notFound(const std::string& path, const char* more = "")
{
    return path +
           "\nDatei ist in der Tabelle nicht vorhanden!\noder\nes ist ein <Neuaufbau> erforderlich.\noder\n"
           "Sie haben keine Zugriffsberechtigung!" +
           more;
}

TEST_F(TopBarTest, APathFromTheClipboardLeadsToItsTable)
{
    for (int tab = 0; tab < 5; ++tab) {
        present(tab, "A");
        present(tab, "B");
        tabs_.chooseTab(5);
        const std::string path = documentPath("B_0." + std::string(DOCUMENT_TYPES[tab].extension));
        paste(path + (tab % 2 == 0 ? "\r\n" : "\n"));
        EXPECT_EQ(tables_.tab(), tab);
        EXPECT_EQ(session_.AktDoku.filename, path);
        bar_.click("Pfad in ZwSp");
        EXPECT_EQ(world_.clipboard.content, path);
    }
}

TEST_F(TopBarTest, WhatIsNoDocumentOfATableGetsItsBox)
{
    for (const char* name : {"neu.par", "neu.dft", "neu.txt", "neu.par.bak"})
        world_.files.create(documentPath(name));
    const struct
    {
        std::string text;
        const char* title;
        std::string box;
        int tab; // Afterwards.
    } cases[] = {
        {"", "SE-Doku: Zwischenspeicher", "Der Zwischenspeicher ist leer!", 1},
        {"Hallo\nWelt", "Im Verzeichnis nicht vorhanden", fileMissing("Hallo\nWelt"), 1},
        {documentPath("weg.par") + "\n\n\n", "Im Verzeichnis nicht vorhanden",
         fileMissing(documentPath("weg.par") + "\n"), 1},
        {documentPath("neu.txt"), "File-Endung", "File-Endung txt ist nicht zulässig!", 1},
        {documentPath("neu.par"), "Suchergebnis",
         notFound(documentPath("neu.par"), "\noder\nist Bestandteil der Sondertabellen!\n(z.B. Normteile)"), 0},
        {documentPath("neu.dft"), "Suchergebnis", notFound(documentPath("neu.dft")), 3},
    };
    for (const auto& c : cases) {
        tabs_.chooseTab(1);
        world_.boxes.expect(c.title, c.box);
        paste(c.text);
        EXPECT_EQ(tables_.tab(), c.tab) << c.text;
    }
}

TEST_F(TopBarTest, AFilteredTableIsAskedAbout)
{
    present(0, "A");
    present(0, "B");
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        filter(0, "DokuBez = 'A'");
        tabs_.chooseTab(1);
        expectFilterQuestion(0, answer);
        if (answer == Answer::No)
            world_.boxes.answer();
        paste(documentPath("B_0.par"));
        EXPECT_EQ(session_.AktDoku.DokuBez, answer == Answer::Yes ? "B" : "A");
    }
}

TEST_F(TopBarTest, ButtonsFollowTheDocumentAndTheViewer)
{
    const auto enabled = [&] {
        std::string text;
        for (const char* key : {"Neuaufbau", "Anschauen", "Pfad in ZwSp", "Pfad aus ZwSp", "Zu Favoriten",
                                "Favoriten....", "In Benutzung.."})
            text += bar_.usable(key) ? "x" : "-";
        return text;
    };
    tabs_.chooseTab(0);
    EXPECT_EQ(enabled(), "x--x-xx");
    present(1, "A");
    tabs_.chooseTab(1);
    EXPECT_EQ(enabled(), "xxxxxxx");
    session_.use.CheckInOutOn = true;
    EXPECT_EQ(enabled(), "xxxxxx-");
    bar_.click("Anschauen", true);
    EXPECT_EQ(viewers_.stands(ViewerPlace::Document), documentPath("A_0.psm"));
    EXPECT_TRUE(bar_.pressed("Anschauen"));
    EXPECT_EQ(enabled(), "-x-----");
    bar_.click("Anschauen", false);
    EXPECT_EQ(viewers_.stands(ViewerPlace::Document), "");
    EXPECT_EQ(enabled(), "xxxxxx-");
}

TEST_F(TopBarTest, TheOtherKeys)
{
    int dialogs = 0;
    bar_.printerDialog = [&] { ++dialogs; };
    bar_.click("Drucker....");
    bar_.click("Gibt es nicht");
    EXPECT_EQ(dialogs, 1);
    world_.boxes.expect("CheckInOut der Benutzung",
                        "Die Benutzung wird nicht registriert, da 'CheckInOut' in der\n"
                        "Ini-Tabelle der Datenbank auf '0' gesetzt ist oder fehlt!\n\nEintrag muss lauten:\n"
                        "Spalte 'Feld1' = '!QV_Ini'\nSpalte 'Feld2' = 'OnOff'\nSpalte 'Feld3' = 'CheckInOut'\n"
                        "Spalte 'Feld4' = '1'\n\nNach Änderung muss Quelvarn neu gestartet werden.");
    bar_.click("In Benutzung..");
    present(0, "A");
    tabs_.chooseTab(0);
    tabs_.rebuild();
    bar_.click("Zu Favoriten");
    bar_.click("Favoriten....", true);
    EXPECT_TRUE(bar_.pressed("Favoriten...."));
    EXPECT_EQ(program_.favourites.list()->RecordCount(), 1u);
    bar_.click("Favoriten....", false);
    EXPECT_FALSE(bar_.pressed("Favoriten...."));
}

} // namespace quelvarn
