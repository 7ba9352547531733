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
        const auto verbinde = [&](const char* tabelle, const char* spalte, const std::string& baugruppe,
                                  const std::string& datei) {
            zeile(tabelle, {{"AssembDokuBez", baugruppe},
                            {"AssembRevBez", "0"},
                            {"AssembDateiname", baugruppe + "_0.asm"},
                            {"Assembfilename", pfad(baugruppe + "_0.asm")},
                            {spalte, pfad(datei)}});
        };
        dokument(0, "P1", "0", 1);
        dokument(0, "P2");
        dokument(2, "G");
        dokument(2, "U");
        dokument(3, "Z");
        dokument(4, "S");
        dokument(6, "N"); // A standard part of the second special table.
        verbinde("ZusBauPart", "Part", "G", "P2_0.par");
        verbinde("ZusBauPart", "Part", "G", "P1_0.par");
        verbinde("ZusBauPart", "Part", "G", "P1_0.PAR"); // The same file.
        verbinde("ZusBauPart", "Part", "G", "N_0.par");
        verbinde("ZusBauPart", "Part", "G", "fehlt.stp");
        verbinde("ZusBauPart", "Part", "U", "P1_0.par");
        verbinde("ZusBauSubAss", "Subassembly", "G", "U_0.asm");
        zeile("VerbindungDraftPart", {{"DokuBezDraft", "Z"},
                                      {"RevBezDraft", "0"},
                                      {"DateinameDraft", "Z_0.dft"},
                                      {"filenameDraft", pfad("Z_0.dft")},
                                      {"DateinameAssembPart", "P1_0.par"},
                                      {"PfadAssembPart", pfad("P1_0.par")}});
        zeile("VerbindungWeldAssemb", {{"DokuBezWeld", "S"},
                                       {"RevBezWeld", "0"},
                                       {"DateinameWeld", "S_0.pwd"},
                                       {"filenameWeld", pfad("S_0.pwd")},
                                       {"DateinameAssemb", "U_0.asm"},
                                       {"PfadAssemb", pfad("U_0.asm")}});
    }

    void oeffneSeite(int tab, const std::string& DokuBez, std::string_view knoten)
    {
        zeigeDokument(tab, DokuBez);
        info_.chooseNode(knoten);
    }

    std::string dateien()
    {
        std::string text;
        for (std::size_t i = 0; usage_.hatZeilen() && i < usage_.zeilen().RecordCount(); ++i)
            text += alsText(usage_.zeilen().Zelle(i, usage_.art()->felder.Dateiname)) + " ";
        return text;
    }

    void waehle(const std::string& datei)
    {
        std::size_t i = 0;
        while (alsText(usage_.zeilen().Zelle(i, usage_.art()->felder.Dateiname)) != datei)
            ++i;
        usage_.zeileGewaehlt(i);
    }

    Verwendungsseite& usage_ = info_.relation();
};

TEST_F(UsageTest, EachPageListsItsDocumentsOnceAndTellsOfTheFirst)
{
    struct Fall
    {
        int tab;
        const char* dokument;
        std::string_view knoten;
        const char* dateien;
        const char* erstes;
    };
    for (const Fall& fall :
         {Fall{0, "P1", knoten::IN_BAUGRUPPE, "G_0.asm U_0.asm ", "G"},
          Fall{2, "U", knoten::IN_BAUGRUPPE, "G_0.asm ", "G"}, Fall{0, "P1", knoten::IN_ZEICHNUNG, "Z_0.dft ", "Z"},
          Fall{2, "U", knoten::IN_SCHWEISSTEIL, "S_0.pwd ", "S"},
          Fall{2, "G", knoten::BESTEHT_AUS, "fehlt.stp N_0.par P1_0.par P2_0.par U_0.asm ", ""},
          Fall{3, "Z", knoten::ENTHAELT, "P1_0.par ", "P1"},
          Fall{4, "S", knoten::ENTHAELT_BAUGRUPPE, "U_0.asm ", "U"}}) {
        oeffneSeite(fall.tab, fall.dokument, fall.knoten);
        EXPECT_EQ(dateien(), fall.dateien) << fall.knoten;
        EXPECT_EQ(usage_.details().DokuBez, fall.erstes) << fall.knoten;
        tabs_.chooseRow(0);
        EXPECT_EQ(usage_.art(), nullptr) << "a page is that of one row";
    }
}

TEST_F(UsageTest, AComponentIsFoundInItsTableOrInASpecialOne)
{
    oeffneSeite(2, "G", knoten::BESTEHT_AUS);
    EXPECT_TRUE(usage_.details().leer);
    EXPECT_FALSE(usage_.bedienbar()); // No table for this ending.
    waehle("N_0.par");
    EXPECT_EQ(usage_.SondertabelleNr(), 2);
    EXPECT_EQ(usage_.details().StatusName, "(Freigegeben)");
    waehle("P1_0.par");
    EXPECT_EQ(usage_.SondertabelleNr(), 0);
    EXPECT_EQ(usage_.details().StatusName, "(In Arbeit)");
    EXPECT_EQ(panels_.fileName() + "|" + panels_.folder() + "|" + panels_.status().text, "P1_0.par|W:\\Teile|");
}

TEST_F(UsageTest, OutsideTheStatusScopeAComponentIsTolerantlyShownAndOthersAreNot)
{
    siehtStati("3");
    welt_.dateien.legeAn(pfad("P1_0.par"));
    oeffneSeite(2, "G", knoten::BESTEHT_AUS);
    usage_.setzeGrafik(false);
    const std::string status = "ACHTUNG!\nBestandteile der Baugruppe haben einen\nanderen Status als die Baugruppe.";
    welt_.meldungen.erwarte("Status der Baugruppe", status);
    waehle("P1_0.par");
    usage_.setzeGrafik(true);
    EXPECT_EQ(viewers_.steht(Ansicht::BestehtAus), pfad("P1_0.par"));
    EXPECT_TRUE(usage_.zeigtVorschau());
    usage_.setzeGrafik(false);
    EXPECT_EQ(viewers_.steht(Ansicht::BestehtAus), "");
    const auto kein = [](const std::string& auf) {
        return "ACHTUNG!\nSie haben " + auf + " keine Zugriffsberechtigung.";
    };
    welt_.meldungen.erwarte("Keine Zugriffsberechtigung", kein("auf dieses Teil der Baugruppe"));
    usage_.anschauen();
    waehle("N_0.par"); // Special tables have no scope: no box.

    oeffneSeite(3, "Z", knoten::ENTHAELT);
    welt_.meldungen.erwarte("Keine Zugriffsberechtigung", kein("auf dieses Modell der Zeichnung"));
    usage_.setzeGrafik(true);
    EXPECT_FALSE(usage_.zeigtVorschau());
}

TEST_F(UsageTest, AnUnreadableFileLeavesTheDetails)
{
    oeffneSeite(0, "P1", knoten::IN_BAUGRUPPE);
    const std::string box = "Die Datei:\n" + pfad("G_0.asm") +
                            "\nkonnte nicht geöffnet werden!\nMögliche Ursache:\n"
                            "- Falscher Pfad- und/oder Dateiname.\n- Kein Zugriffsrecht.";
    welt_.meldungen.erwarte("Anzeigen im Viewer", box);
    usage_.anschauen();
    EXPECT_FALSE(usage_.zeigtVorschau() || usage_.ChViewGrafik());
    welt_.dateien.legeAn(pfad("G_0.asm"));
    usage_.anschauen();
    EXPECT_TRUE(usage_.zeigtVorschau() && usage_.ChViewGrafik());
    welt_.meldungen.antworte(); // The next row has no file.
    usage_.zeileGewaehlt(1);
    EXPECT_FALSE(usage_.zeigtVorschau());
    EXPECT_EQ(viewers_.steht(Ansicht::InBaugruppe), "");
}

TEST_F(UsageTest, TheToolBarActsOnTheRow)
{
    const auto favourites = [&](const char* type) {
        Recordset rows;
        rows.Open(sql::Query("Ini").where(sql::all(sql::equal("Feld2", "Favoriten"), sql::equal("Feld3", type))),
                  session_.database.Verbindung);
        return rows.leer() ? std::string() : rows.Text("Feld4") + "/" + rows.Text("Feld5");
    };
    oeffneSeite(2, "G", knoten::BESTEHT_AUS);
    usage_.pfadInZwSp(); // "fehlt.stp" belongs to no table: nothing happens.
    actions_.goToTable();
    EXPECT_EQ(welt_.zwischenablage.text(), "");
    waehle("P2_0.par");
    usage_.pfadInZwSp();
    EXPECT_EQ(welt_.zwischenablage.text(), pfad("P2_0.par"));
    actions_.addToFavourites();
    EXPECT_EQ(favourites("Part"), "P2/0");
    waehle("N_0.par");
    actions_.addToFavourites();
    EXPECT_EQ(favourites("STbl2"), "N/0");

    session_.database.Verbindung.Execute("DELETE FROM AssembTabelle WHERE DokuBez = 'U'");
    waehle("U_0.asm");
    welt_.meldungen.erwarte("Favoriten", "Der Eintrag bei Favoriten konnte\nnicht erfolgreich durchgeführt werden!\n"
                                         "Mögliche Ursache:\n- Datei ist in der Tabelle nicht vorhanden.\n"
                                         "- Es ist ein <Neuaufbau> erforderlich.\n- Falscher Pfad-/Dateiname.");
    actions_.addToFavourites();
}

} // namespace
} // namespace quelvarn
