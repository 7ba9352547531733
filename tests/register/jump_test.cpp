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
                dokument(tab, name);
        tabs_.chooseTab(0);
    }

    bool springe(int tab, const std::string& datei)
    {
        const DokuTyp& typ = DOKUTYPEN[static_cast<std::size_t>(tab)];
        return tab == 3 ? sprung_.ZeichnungZeigen(pfad(datei)) : sprung_.ZuDokumentWechseln(typ, pfad(datei));
    }
    static std::string dateiVon(int tab, const std::string& name)
    {
        return name + (tab == 2 ? "_0.asm" : tab == 3 ? "_0.dft" : "_0.par");
    }
    void fragtNeuaufbau(int tab, Antwort antwort)
    {
        welt_.meldungen.erwarte("Neuaufbau der Tabelle durchführen?",
                                std::string(tab == 3 ? "Die Zeichnung" : "Das Modell") +
                                    " ist in der Tabelle nicht vorhanden!\nSoll ein 'Neuaufbau' durchgeführt werden?",
                                antwort);
    }
    std::string ort() { return std::to_string(tables_.tab()) + session_.AktDoku.DokuBez; }

    Dokumentsprung& sprung_ = program_.jump;
};

TEST_F(JumpTest, AnUnopenedTableIsOpenedAndADocumentIsFoundByItsWholePath)
{
    for (const int tab : {2, 3, 6, 0}) {
        EXPECT_TRUE(springe(tab, dateiVon(tab, "B"))) << tab;
        EXPECT_EQ(ort(), std::to_string(tab) + "B");
    }
    dokument(0, "A1", "0");
    session_.database.Verbindung.Execute("UPDATE PartTabelle SET filename = 'W:\\Teile\\B_0.parx' WHERE DokuBez = 'A'");
    tabs_.rebuild();
    EXPECT_TRUE(springe(0, "B_0.par")); // Not the longer path in the row before.
    EXPECT_EQ(ort(), "0B");
}

TEST_F(JumpTest, ADocumentIsFoundByEachOfItsPathsWhateverItsNameAndItsTwins)
{
    Connection& database = session_.database.Verbindung;
    database.Execute(
        "UPDATE PartTabelle SET filename = '\\\\server\\konstruktion\\Teile\\B_0.par' WHERE DokuBez = 'B'");
    tabs_.rebuild();
    EXPECT_TRUE(springe(0, "B_0.par")); // Stored by the share that W: stands for.
    EXPECT_EQ(ort(), "0B");
    EXPECT_TRUE(sprung_.ZuDokumentWechseln(DOKUTYPEN[2], "\\\\server\\konstruktion\\Teile\\C_0.asm"));
    EXPECT_EQ(ort(), "2C"); // Stored by the letter.

    database.Execute("UPDATE DraftTabelle SET DokuBez = Null, RevBez = Null WHERE DokuBez = 'B'");
    tabs_.chooseTab(3);
    tabs_.rebuild();
    tabs_.chooseRow(2);
    tabs_.chooseTab(0);
    EXPECT_TRUE(springe(3, "B_0.dft"));
    EXPECT_EQ(session_.AktDoku.filename, pfad("B_0.dft"));

    zeile("PartTabelle", {{"DokuBez", "A9"}, {"RevBez", "0"}, {"filename", pfad("twice.par")}, {"Status", 0}});
    zeile("PartTabelle", {{"DokuBez", "D"}, {"RevBez", "0"}, {"filename", pfad("twice.par")}, {"Status", 3}});
    siehtStati("3");
    tabs_.chooseTab(0);
    tabs_.rebuild();
    EXPECT_TRUE(springe(0, "twice.par")); // The one that may be seen.
    EXPECT_EQ(ort(), "0D");
}

TEST_F(JumpTest, AFilterIsKeptOrLiftedAsAnswered)
{
    for (const int tab : {2, 3, 6}) {
        filtere(tab, "DokuBez = 'B'");
        erwarteFilterfrage(tab, Antwort::Nein);
        EXPECT_TRUE(springe(tab, dateiVon(tab, "B")));
        EXPECT_EQ(tables_.current().state(), TableState::Filtered);

        tabs_.chooseTab(0);
        erwarteFilterfrage(tab, Antwort::Nein); // Kept, and it hides the document.
        fragtNeuaufbau(tab, Antwort::Nein);
        EXPECT_FALSE(springe(tab, dateiVon(tab, "C")));
        EXPECT_EQ(ort(), std::to_string(tab) + "B") << "the place in the table is kept";

        erwarteFilterfrage(tab, Antwort::Ja);
        EXPECT_TRUE(springe(tab, dateiVon(tab, "C")));
        EXPECT_EQ(ort(), std::to_string(tab) + "C");
        EXPECT_EQ(liste(), "A/0 B/0 C/0 ");
    }
}

TEST_F(JumpTest, ADocumentThatIsNewerThanItsTableNeedsARebuild)
{
    for (const int tab : {2, 3, 6}) {
        tabs_.chooseTab(tab);
        tabs_.chooseRow(1);
        tabs_.chooseTab(0);
        dokument(tab, "D");
        const std::string neu = dateiVon(tab, "D");
        if (tab == 3) {
            fragtNeuaufbau(tab, Antwort::Abbrechen);
            EXPECT_FALSE(springe(tab, neu));
            EXPECT_EQ(ort(), "0A");
        }
        fragtNeuaufbau(tab, Antwort::Nein);
        EXPECT_FALSE(springe(tab, neu));
        EXPECT_EQ(ort(), std::to_string(tab) + "B");
        fragtNeuaufbau(tab, Antwort::Ja);
        EXPECT_TRUE(springe(tab, neu));
        EXPECT_EQ(ort(), std::to_string(tab) + "D");
        EXPECT_EQ(liste(), "A/0 B/0 C/0 D/0 ");
    }
}

TEST_F(JumpTest, ADocumentThatMayNotBeSeenStaysHidden)
{
    dokument(2, "G", "0", 0);
    siehtStati("3");
    tabs_.chooseTab(2);
    tabs_.chooseRow(2);
    tabs_.chooseTab(0);
    fragtNeuaufbau(2, Antwort::Ja);
    welt_.meldungen.erwarte("Suchergebnis", "Datei ist in der Tabelle nicht vorhanden!\n"
                                            "es ist ein <Neuaufbau> erforderlich.\noder\n"
                                            "Sie haben keine Zugriffsberechtigung.");
    EXPECT_FALSE(springe(2, "G_0.asm"));
    EXPECT_EQ(ort(), "2C");
}

TEST_F(JumpTest, ADoubleClickOpensTheDocumentWhenItWasFound)
{
    int bearbeitet = 0;
    program_.frame.setzeAktion(Werkzeug::Bearbeiten, [&] { ++bearbeitet; });
    for (const char* teil : {"A_0.par", "S_0.par"})
        zeile("ZusBauPart", {{"AssembDokuBez", "A"}, {"AssembRevBez", "0"}, {"Part", pfad(teil)}});
    dokument(6, "S");
    Verwendungsseite& usage = info_.relation();
    zeigeDokument(2, "A");
    info_.chooseNode("Besteht aus");
    welt_.meldungen.erwarte("Im Verzeichnis nicht vorhanden", dateiFehlt(pfad("A_0.par")));
    actions_.open();
    welt_.dateien.legeAn(pfad("A_0.par"));
    welt_.dateien.legeAn(pfad("S_0.par"));
    usage.zeileGewaehlt(1);
    welt_.meldungen.erwarte(
        "Bearbeiten der Dokumente in den Sondertabellen",
        "Für die Bearbeitung der Dokumente in den Sondertabellen ist eine besondere Arbeitsweise erfoderlich!\n"
        "Der Doppelklick zum Öffnen der Solid Edge-Datei wird daher an dieser Stelle nicht unterstützt.\n"
        "Wenden Sie sich an ihren Systemadministrator für Quelvarnis.");
    actions_.open();
    EXPECT_EQ(bearbeitet, 0);
    EXPECT_EQ(tables_.tab(), 2);
    usage.zeileGewaehlt(0);
    actions_.open();
    EXPECT_EQ(bearbeitet, 1);
    EXPECT_EQ(ort(), "0A");

    zeigeDokument(2, "A");
    info_.chooseNode("Besteht aus");
    usage.zeileGewaehlt(1);
    actions_.goToTable();
    EXPECT_EQ(ort(), "6S");
    EXPECT_EQ(bearbeitet, 1);
}

} // namespace
} // namespace quelvarn
