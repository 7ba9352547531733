#include "register/top_bar.h"
#include "register_fixture.h"

namespace quelvarn {

class TopBarTest : public RegisterTest
{
protected:
    // A document whose file is there.
    void present(int tab, const std::string& DokuBez)
    {
        dokument(tab, DokuBez);
        welt_.dateien.legeAn(pfad(DokuBez + "_0." + std::string(DOKUTYPEN[tab].endung)));
    }
    void paste(const std::string& text)
    {
        welt_.zwischenablage.inhalt = text;
        bar_.klick("Pfad aus ZwSp");
    }

    ObereLeiste& bar_ = program_.topBar;
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
        const std::string path = pfad("B_0." + std::string(DOKUTYPEN[tab].endung));
        paste(path + (tab % 2 == 0 ? "\r\n" : "\n"));
        EXPECT_EQ(tables_.tab(), tab);
        EXPECT_EQ(session_.AktDoku.filename, path);
        bar_.klick("Pfad in ZwSp");
        EXPECT_EQ(welt_.zwischenablage.inhalt, path);
    }
}

TEST_F(TopBarTest, WhatIsNoDocumentOfATableGetsItsBox)
{
    for (const char* name : {"neu.par", "neu.dft", "neu.txt", "neu.par.bak"})
        welt_.dateien.legeAn(pfad(name));
    const struct
    {
        std::string text;
        const char* title;
        std::string box;
        int tab; // Afterwards.
    } cases[] = {
        {"", "SE-Doku: Zwischenspeicher", "Der Zwischenspeicher ist leer!", 1},
        {"Hallo\nWelt", "Im Verzeichnis nicht vorhanden", dateiFehlt("Hallo\nWelt"), 1},
        {pfad("weg.par") + "\n\n\n", "Im Verzeichnis nicht vorhanden", dateiFehlt(pfad("weg.par") + "\n"), 1},
        {pfad("neu.txt"), "File-Endung", "File-Endung txt ist nicht zulässig!", 1},
        {pfad("neu.par"), "Suchergebnis",
         notFound(pfad("neu.par"), "\noder\nist Bestandteil der Sondertabellen!\n(z.B. Normteile)"), 0},
        {pfad("neu.dft"), "Suchergebnis", notFound(pfad("neu.dft")), 3},
    };
    for (const auto& c : cases) {
        tabs_.chooseTab(1);
        welt_.meldungen.erwarte(c.title, c.box);
        paste(c.text);
        EXPECT_EQ(tables_.tab(), c.tab) << c.text;
    }
}

TEST_F(TopBarTest, AFilteredTableIsAskedAbout)
{
    present(0, "A");
    present(0, "B");
    for (const Antwort answer : {Antwort::Nein, Antwort::Ja}) {
        filtere(0, "DokuBez = 'A'");
        tabs_.chooseTab(1);
        erwarteFilterfrage(0, answer);
        if (answer == Antwort::Nein)
            welt_.meldungen.antworte();
        paste(pfad("B_0.par"));
        EXPECT_EQ(session_.AktDoku.DokuBez, answer == Antwort::Ja ? "B" : "A");
    }
}

TEST_F(TopBarTest, ButtonsFollowTheDocumentAndTheViewer)
{
    const auto enabled = [&] {
        std::string text;
        for (const char* key : {"Neuaufbau", "Anschauen", "Pfad in ZwSp", "Pfad aus ZwSp", "Zu Favoriten",
                                "Favoriten....", "In Benutzung.."})
            text += bar_.bedienbar(key) ? "x" : "-";
        return text;
    };
    tabs_.chooseTab(0);
    EXPECT_EQ(enabled(), "x--x-xx");
    present(1, "A");
    tabs_.chooseTab(1);
    EXPECT_EQ(enabled(), "xxxxxxx");
    session_.use.CheckInOutOn = true;
    EXPECT_EQ(enabled(), "xxxxxx-");
    bar_.klick("Anschauen", true);
    EXPECT_EQ(viewers_.steht(Ansicht::Dokument), pfad("A_0.psm"));
    EXPECT_TRUE(bar_.gedrueckt("Anschauen"));
    EXPECT_EQ(enabled(), "-x-----");
    bar_.klick("Anschauen", false);
    EXPECT_EQ(viewers_.steht(Ansicht::Dokument), "");
    EXPECT_EQ(enabled(), "xxxxxx-");
}

TEST_F(TopBarTest, TheOtherKeys)
{
    int dialogs = 0;
    bar_.druckerdialog = [&] { ++dialogs; };
    bar_.klick("Drucker....");
    bar_.klick("Gibt es nicht");
    EXPECT_EQ(dialogs, 1);
    welt_.meldungen.erwarte("CheckInOut der Benutzung",
                            "Die Benutzung wird nicht registriert, da 'CheckInOut' in der\n"
                            "Ini-Tabelle der Datenbank auf '0' gesetzt ist oder fehlt!\n\nEintrag muss lauten:\n"
                            "Spalte 'Feld1' = '!QV_Ini'\nSpalte 'Feld2' = 'OnOff'\nSpalte 'Feld3' = 'CheckInOut'\n"
                            "Spalte 'Feld4' = '1'\n\nNach Änderung muss Quelvarn neu gestartet werden.");
    bar_.klick("In Benutzung..");
    present(0, "A");
    tabs_.chooseTab(0);
    tabs_.rebuild();
    bar_.klick("Zu Favoriten");
    bar_.klick("Favoriten....", true);
    EXPECT_TRUE(bar_.gedrueckt("Favoriten...."));
    EXPECT_EQ(bar_.favoriten().liste()->RecordCount(), 1u);
    bar_.klick("Favoriten....", false);
    EXPECT_FALSE(bar_.gedrueckt("Favoriten...."));
}

} // namespace quelvarn
