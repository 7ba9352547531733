#include "register/document_questions.h"
#include "register_fixture.h"

#include <map>
#include <vector>

namespace quelvarn {
namespace {

class DetailPagesTest : public RegisterTest
{
protected:
    // The rows of a page, cells joined with "|".
    std::vector<std::string> zeilenVon(InfoSeite seite)
    {
        std::vector<std::string> zeilen;
        const Recordset* liste = info_.details().liste(seite);
        for (std::size_t i = 0; liste != nullptr && i < liste->RecordCount(); ++i) {
            std::string zeile;
            for (const Spalte& spalte : liste->Felder())
                zeile += "|" + alsText(liste->Zelle(i, spalte.name));
            zeilen.push_back(zeile.substr(1));
        }
        return zeilen;
    }
    void zusDoku(const char* name, const std::string& ablage)
    {
        zeile("VerbindungPartZusDoku",
              {{"Dokufilename", pfad("A_0.par")}, {"ZusDokuDateiname", name}, {"ZusDokufilename", ablage}});
    }
    Detailseiten& details_ = info_.details();
    using Zeilen = std::vector<std::string>;
};

TEST_F(DetailPagesTest, RevisionsComeInTheTwoViewsWithoutThoseThatChangedNothing)
{
    const auto revision = [&](const char* RevBez, const Value& aenderung, const Value& autor) {
        zeile("SheetMTabelle", {{"DokuBez", "O'Neil"},
                                {"RevBez", RevBez},
                                {"filename", pfad(RevBez)},
                                {"Erstellt", Zeitpunkt::aus({2004, 2, 9, 7, 5, 0})},
                                {"Autor", autor},
                                {"Geaendert", Zeitpunkt::aus({2011, 12, 24, 0, 0, 0})},
                                {"Bearbeiter", "Weber"},
                                {"Aenderung", aenderung}});
    };
    revision("B", "Maß korrigiert", Value());
    revision("A", "Werkstoff", "Meier");
    revision("0", "", "Meier");
    revision("C", Value(), "Meier");
    zeigeDokument(1, "O'Neil", "A");
    info_.chooseNode(knoten::REVISION);
    const Zeilen erstellt{"A|09.02.04|Meier|Werkstoff", "B|09.02.04||Maß korrigiert"};
    EXPECT_EQ(zeilenVon(InfoSeite::Revisionen), erstellt);
    details_.setzeRevErstBearb(RevErstBearb::Bearbeitet);
    const Zeilen bearbeitet{"A|24.12.11|Weber|Werkstoff", "B|24.12.11|Weber|Maß korrigiert"};
    EXPECT_EQ(zeilenVon(InfoSeite::Revisionen), bearbeitet);
    info_.chooseNode(knoten::REVISION); // Begins with the first view again.
    EXPECT_EQ(details_.OpRevErstBearb(), RevErstBearb::Erstellt);
    EXPECT_EQ(zeilenVon(InfoSeite::Revisionen), erstellt);
}

TEST_F(DetailPagesTest, UserDefinedPropertiesStandByTheirNames)
{
    dokument(0, "A");
    for (const auto& [name, wert] : std::vector<std::pair<std::string, std::string>>{{"Ölstand", "x"},
                                                                                     {"werkstoff", "S235"},
                                                                                     {"Farbe", "rot"},
                                                                                     {"Farbe", "blau"},
                                                                                     {"Zahl", "7"},
                                                                                     {"abmaß", "1"}})
        zeile("PartTabelleBenutzDef", {{"DokuBez", "A"}, {"RevBez", "0"}, {"Name", name}, {"Wert", wert}});
    tabs_.chooseTab(0);
    info_.chooseNode(knoten::BENUTZDEF);
    const Zeilen sorted{"abmaß|1", "Farbe|blau", "Farbe|rot", "Ölstand|x", "werkstoff|S235", "Zahl|7"};
    EXPECT_EQ(zeilenVon(InfoSeite::BenutzDef), sorted);
}

TEST_F(DetailPagesTest, ARowNamedLikeAnAddressStandsOnTheSentToPageOnly)
{
    dokument(0, "A");
    for (const auto& [name, wert] : std::map<std::string, std::string>{
             {"Oberfläche", "verzinkt"}, {"dreherei", "W:\\Auftraege\\VersandM110214103059.txt"}, {"Härterei", "kurz"}})
        zeile("PartTabelleBenutzDef", {{"DokuBez", "A"}, {"RevBez", "0"}, {"Name", name}, {"Wert", wert}});
    zeile("PartTabelleBenutzDef", {{"DokuBez", "A"}, {"RevBez", "1"}, {"Name", "andere"}, {"Wert", "Revision"}});
    for (const char* kennung : {"Dreherei", "Härterei", "Dreherei"})
        zeile("Adresstabelle", {{"Kennung", kennung}, {"Name", "Ort"}});
    tabs_.chooseTab(0);
    info_.chooseNode(knoten::BENUTZDEF);
    EXPECT_EQ(zeilenVon(InfoSeite::BenutzDef), Zeilen{"Oberfläche|verzinkt"});
    info_.chooseNode(knoten::VERSENDET);
    const Zeilen versendet{"14.02.11  10:30|dreherei|VersandM110214103059.txt|W:\\Auftraege\\VersandM110214103059.txt",
                           "|Härterei|kurz|kurz"};
    EXPECT_EQ(zeilenVon(InfoSeite::SendTo), versendet);
}

TEST_F(DetailPagesTest, AnOrderIsLookedForInItsFolderAndThenInTheArchive)
{
    const std::string auftrag = "W:\\Auftraege\\Meier\\PlotQVP110214103059.txt";
    const std::string archiviert = "W:\\Auftraege\\Auftragsarchiv\\PlotQVP110214103059.txt";
    session_.orders.PlotPfad = "W:\\Auftraege";
    dokument(0, "A");
    zeile("PartTabelleBenutzDef", {{"DokuBez", "A"}, {"RevBez", "0"}, {"Name", "K"}, {"Wert", auftrag}});
    zeile("Adresstabelle", {{"Kennung", "K"}});
    tabs_.chooseTab(0);
    info_.chooseNode(knoten::VERSENDET);
    auto& geoeffnet = welt_.standardanwendung.geoeffnet;

    welt_.meldungen.antworte(Antwort::Nein);
    details_.oeffneAuftrag();
    EXPECT_TRUE(geoeffnet.empty());
    welt_.meldungen.antworte(Antwort::Ja);
    welt_.meldungen.antworte();
    details_.oeffneAuftrag();
    EXPECT_EQ(welt_.meldungen.letzte().titel, "Im Archiv nicht vorhanden");
    welt_.dateien.legeAn(archiviert);
    welt_.meldungen.antworte(Antwort::Ja);
    details_.oeffneAuftrag();
    welt_.dateien.legeAn(auftrag);
    details_.oeffneAuftrag();
    EXPECT_EQ(geoeffnet, (Zeilen{archiviert, auftrag}));
}

TEST_F(DetailPagesTest, TheTemplateBranchEndsAtTheFirstEmptyFeature)
{
    struct Fall
    {
        std::vector<std::string> merkmale; // from C
        std::size_t ebenen;
    };
    const Fall faelle[] = {
        {{}, 0}, {{"", "D"}, 0}, {{"Wellen"}, 1}, {{"c", "d", "", "f"}, 2}, {{"c", "d'x", "e", "f", "g"}, 5}};
    for (const Fall& fall : faelle) {
        DokuRecord record;
        for (std::size_t i = 0; i < fall.merkmale.size(); ++i)
            record.Hauptmerkmal[i + 2] = fall.merkmale[i];
        EXPECT_TRUE(std::ranges::equal(templateBranch(record), std::span(fall.merkmale).first(fall.ebenen)));
    }
}

TEST_F(DetailPagesTest, MainFeaturesStandInTheirOrderWithTheTemplate)
{
    session_.labels.Bezeichnungen["hauptmerkmal b"] = "Normreihe";
    zeile("PartTabelle", {{"DokuBez", "M"},
                          {"Hauptmerkmal_A", "a1"},
                          {"Hauptmerkmal_C", "Wellen"},
                          {"Hauptmerkmal_D", "lang"},
                          {"Hauptmerkmal_F", "f1"},
                          {"Hauptwert_a", 1234.5},
                          {"Hauptwert_g", -0.0004},
                          {"Alias_a", "Länge"}});
    zeile("PartTabelle", {{"DokuBez", "N"}, {"Hauptmerkmal_C", "Wellen"}, {"Hauptmerkmal_D", "kurz"}});
    zeile("DraftTabelle", {{"DokuBez", "V"},
                           {"filename", "W:\\V.dft"},
                           {"Kategorie", "QV_Vorlage"},
                           {"Hauptmerkmal_C", "Wellen"},
                           {"Hauptmerkmal_D", "lang"}});
    zeigeDokument(0, "M", "");
    info_.chooseNode(knoten::HAUPTMERKMALE);
    const std::string trenner = "#######|############################|##########################";
    const Zeilen erwartet{
        "      A|a1|",    "      B||Normreihe", trenner,          "      C|Wellen|", "      D|lang|Vorlage",
        "      E||",      "      F|f1|",        "      G||",      trenner,           "      a|1.234,500|Länge",
        "      b|0,000|", "      c|0,000|",     "      d|0,000|", "      e|0,000|",  "      f|0,000|",
        "      g|0,000|"};
    EXPECT_EQ(zeilenVon(InfoSeite::Hauptmerkmale), erwartet);
    EXPECT_EQ(details_.LblPfadDateiVorlage(), "W:\\V.dft");
    zeigeDokument(0, "N", "");
    info_.chooseNode(knoten::HAUPTMERKMALE);
    EXPECT_EQ(details_.LblPfadDateiVorlage(), "");
    EXPECT_EQ(zeilenVon(InfoSeite::Hauptmerkmale)[4], "      D|kurz|");
}

TEST_F(DetailPagesTest, AdditionalDocumentsAreShownAndOpened)
{
    dokument(0, "A");
    zusDoku("Blatt.tif", "W:\\Zus\\Blatt.tif/J");
    zusDoku("Fehlt.doc", "W:\\Zus\\Fehlt.doc");
    zusDoku("Text.txt", "W:\\Zus\\Text.txt/j");
    zusDoku("Text2.txt", "W:\\Zus\\Text2.txt");
    welt_.dateien.legeAn("W:\\Zus\\Blatt.tif", std::string(12345, 'x'));
    welt_.dateien.legeAn("W:\\Zus\\Text2.txt", "Ma\xDF");
    tabs_.chooseTab(0);
    info_.chooseNode(knoten::ZUSDOKU);
    const Zeilen zeilen = zeilenVon(InfoSeite::ZusDoku);
    ASSERT_EQ(zeilen.size(), 4U);
    const std::string stand = formatDatumUhrzeit(welt_.uhr.jetzt());
    EXPECT_TRUE(zeilen[0].starts_with(stand + "|Blatt.tif|Ja|W:\\Zus\\Blatt.tif|")) << zeilen[0];
    EXPECT_EQ(zeilen[1], "|Fehlt.doc|Nein|W:\\Zus\\Fehlt.doc||");
    EXPECT_EQ(zeilen[2], "|Text.txt|Nein|W:\\Zus\\Text.txt/j||");
    EXPECT_EQ(details_.LblInfoZusDoku(), stand + "   12.345 Byte");
    EXPECT_EQ(details_.grafikZusDoku(), Dateibild());

    details_.setzeViewGrafikZusDoku(true);
    EXPECT_EQ(details_.grafikZusDoku().datei, "W:\\Zus\\Blatt.tif");
    details_.zeileGewaehlt(InfoSeite::ZusDoku, 3);
    EXPECT_EQ(details_.grafikZusDoku().text, "Maß");
    welt_.meldungen.antworte();
    details_.zeileGewaehlt(InfoSeite::ZusDoku, 1);
    EXPECT_EQ(welt_.meldungen.letzte().titel, "Im Verzeichnis nicht vorhanden");
    EXPECT_EQ(details_.grafikZusDoku(), Dateibild());
    EXPECT_EQ(details_.LblInfoZusDoku(), "");
    welt_.meldungen.antworte();
    details_.oeffneZusDoku();
    details_.zeileGewaehlt(InfoSeite::ZusDoku, 0);
    details_.oeffneZusDoku();
    EXPECT_EQ(welt_.standardanwendung.geoeffnet, Zeilen{"W:\\Zus\\Blatt.tif"});
}

TEST_F(DetailPagesTest, TheTiffIsTheRegisteredOneOrTheOneBesideTheDrawing)
{
    dokument(3, "Z");
    welt_.dateien.legeAn(pfad("Z_0.tif"));
    tabs_.chooseTab(3);
    info_.chooseNode(knoten::TIFF);
    EXPECT_EQ(details_.tiff(), pfad("Z_0.tif"));
    zeile("TIFFTabelle", {{"Dateiname", "Z_0.tif"}, {"filename", "W:\\TIFF\\Z_0.tif"}});
    welt_.meldungen.antworte();
    info_.chooseNode(knoten::TIFF); // Registered, but not there.
    EXPECT_EQ(welt_.meldungen.letzte().titel, "Im Verzeichnis nicht vorhanden");
    EXPECT_EQ(details_.tiff(), "");
    welt_.dateien.legeAn("W:\\TIFF\\Z_0.tif");
    info_.chooseNode(knoten::TIFF);
    EXPECT_EQ(details_.tiff(), "W:\\TIFF\\Z_0.tif");
    welt_.meldungen.antworte();
    details_.bildNichtGeladen(InfoSeite::Tiff);
    EXPECT_EQ(details_.tiff(), "");

    zeile("TIFFTabelle",
          {{"Dateiname", "HB-101-20tif"}, {"filename", "W:\\TIFF\\HB-101-20.tif"}}); // As Harvel wrote some.
    EXPECT_EQ(EnthaltenInTIFFTabelle(session_.database.Verbindung, "HB-101-20.dft"), "W:\\TIFF\\HB-101-20.tif");
}

TEST_F(DetailPagesTest, AFaultLeavesTheTreeAndAnEmptyPage)
{
    dokument(0, "A");
    zusDoku("Blatt.tif", "W:\\Zus\\Blatt.tif");
    tabs_.chooseTab(0);
    info_.chooseNode(knoten::ZUSDOKU);
    ASSERT_EQ(zeilenVon(InfoSeite::ZusDoku).size(), 1U);
    const std::string vorher = baum();
    session_.database.Verbindung.Close();
    welt_.meldungen.antworte();
    welt_.meldungen.antworte();
    info_.chooseNode(knoten::ZUSDOKU);
    EXPECT_EQ(baum(), vorher);
    EXPECT_EQ(details_.liste(InfoSeite::ZusDoku), nullptr);
    EXPECT_EQ(info_.page(), InfoSeite::ZusDoku);
}

} // namespace
} // namespace quelvarn
