#include "filter/execution.h"
#include "filter/filter_page.h"
#include "filter_fixture.h"
#include "session/error_report.h"

namespace quelvarn {
namespace {

class FilterPageTest : public FilterTest
{
protected:
    FilterPageTest()
    {
        for (Filterzustand& typ : filter_.typen)
            typ.ChFilterStat.fill(false);
        for (Recordset& liste : session_.pages.GespeicherteFilter) {
            liste.FeldAnhaengen("Filtername", FeldTyp::Text);
            liste.FeldAnhaengen("Filterstring", FeldTyp::Text);
            liste.Open();
        }
        dokument("A", {{"Projekt", "P1"}, {"Autor", "Meier"}});
        dokument("B", {{"Projekt", "P1"}, {"Autor", "Schulz"}});
        dokument("C", {{"Projekt", "P2"}, {"Autor", "Schulz"}, {"Status", 1}});
        seite_.zurDokumentseite = [this] { ++verlassen_; };
    }

    static constexpr int PROJEKT = 1, AUTOR = 7;

    void waehle(int index, const std::string& wert) { seite_.eigenschaften().wertGewaehlt(index, wert); }
    int anzahl(int tab = 0) { return filter_.typen[static_cast<std::size_t>(tab)].FilterAnzahl; }

    // The values of the rows collected, "P1|Meier".
    std::string werte() const
    {
        std::string text;
        for (const FilterRow& zeile : seite_.kontext().FilterWerteTabelle())
            text += (text.empty() ? "" : "|") + zeile.Wert;
        return text;
    }
    std::string autoren() { return join(seite_.eigenschaften().liste(AUTOR).werte, "|"); }

    static std::string join(const std::vector<std::string>& teile, const char* zwischen)
    {
        std::string text;
        for (const auto& teil : teile)
            text += (text.empty() ? "" : zwischen) + teil;
        return text;
    }

    void erwarteAlleGefuellt() { welt_.meldungen.erwarte("Anzahl Filter", "Alle Filter sind gefüllt!"); }

    FilterPage seite_{session_, operations_, filter_, tables_};
    int verlassen_ = 0;
};

TEST_F(FilterPageTest, NamesTheTypeAndTheRights)
{
    const std::array<const char*, ANZAHL_DOKUTYPEN> namen{"Bauteile",       "Blechteile",    "Baugruppe",
                                                          "Zeichnung",      "Schweißteile",  "Normteile",
                                                          "Sondertabelle2", "Sondertabelle3"};
    session_.labels.SondertabelleName[0] = "Normteile";
    for (int tab = 0; tab < ANZAHL_DOKUTYPEN; ++tab) {
        tables_.bringToFront(tab);
        seite_.OpenFilterPage();
        EXPECT_EQ(seite_.titel(),
                  std::string("    Solid Edge - Filterwerte für ") + namen[static_cast<std::size_t>(tab)]);
    }
    EXPECT_EQ(seite_.zugriffText(), "Zugriffsberechtigung:             Alle Stati von 0 bis 5");
    siehtStati("3");
    EXPECT_EQ(seite_.zugriffText(), "Berechtigung: 3=Freigegeben;");
    siehtStati("015");
    EXPECT_EQ(seite_.zugriffText(), "Berechtigung: 0=Verfügbar; 1=In Arbeit; 5=Ungültig;");
}

TEST_F(FilterPageTest, FilteringNarrowsTableAndLists)
{
    seite_.OpenFilterPage();
    EXPECT_EQ(autoren(), "Meier|Schulz");
    waehle(PROJEKT, "P2");
    EXPECT_EQ(gezeigt(), "A B C") << "nothing runs before <Filtern>";
    seite_.filtern();
    EXPECT_EQ(gezeigt(), "C");
    EXPECT_EQ(autoren(), "Schulz");
}

TEST_F(FilterPageTest, AFilterStaysWithItsTypeAndIsNarrowedFurther)
{
    seite_.OpenFilterPage();
    waehle(PROJEKT, "P1");
    seite_.filtern();
    seite_.verlassen();
    EXPECT_EQ(verlassen_, 1);
    EXPECT_EQ(gezeigt(), "A B") << "the table stays filtered";

    tables_.bringToFront(3);
    seite_.OpenFilterPage();
    EXPECT_EQ(werte(), "");
    tables_.bringToFront(0);
    seite_.OpenFilterPage();
    EXPECT_EQ(werte(), "P1");
    waehle(AUTOR, "Schulz");
    seite_.filtern();
    EXPECT_EQ(gezeigt(), "B");

    forgetFilter(filter_, 0); // The document page lifted it.
    seite_.OpenFilterPage();
    EXPECT_EQ(werte(), "");
}

TEST_F(FilterPageTest, AQuickFilterOfTheTableIsLifted)
{
    tables_.opened(0).rows().Filter("DokuBez Like 'A*'");
    tables_[0].showFiltered({{}, {}, "Dokumentname A*"});
    seite_.OpenFilterPage();
    EXPECT_EQ(gezeigt(), "A B C");
}

TEST_F(FilterPageTest, AStepThatLeavesNothingGoesWithItsRow)
{
    seite_.OpenFilterPage();
    waehle(PROJEKT, "P2");
    waehle(AUTOR, "Meier");
    welt_.meldungen.antworte();
    seite_.filtern();
    EXPECT_EQ(gezeigt(), "C");
    EXPECT_EQ(werte(), "P2");
    EXPECT_EQ(welt_.meldungen.letzte().titel, "Filtervorgaben");
}

TEST_F(FilterPageTest, ThePartsDoNotMix)
{
    seite_.OpenFilterPage();
    waehle(PROJEKT, "P1");
    seite_.filtern();
    const unsigned listen = seite_.listenfassung();
    seite_.bereichGewaehlt(Filterbereich::Struktur);
    EXPECT_EQ(anzahl(), 0);
    EXPECT_EQ(werte(), "");
    EXPECT_EQ(gezeigt(), "A B") << "until the next run";
    EXPECT_EQ(seite_.kopfFilterwerte(), "      Filterwerte");
    seite_.bereichGewaehlt(Filterbereich::BenutzDef);
    EXPECT_EQ(seite_.kopfFilterwerte(), "      Filterwerte ( * am Anfang u. Ende/oder nur am Ende)");
    seite_.bereichGewaehlt(Filterbereich::Eigenschaften);
    EXPECT_EQ(autoren(), "Meier|Schulz") << "all lists again";
    EXPECT_GT(seite_.listenfassung(), listen);
}

TEST_F(FilterPageTest, ZurueckGoesToTheStateOfTheOpening)
{
    seite_.OpenFilterPage();
    waehle(PROJEKT, "P1");
    seite_.filtern();
    seite_.OpenFilterPage();
    waehle(AUTOR, "Schulz");
    seite_.filtern();
    seite_.zurueck();
    EXPECT_EQ(werte(), "P1");
    EXPECT_EQ(autoren(), "Meier|Schulz");
    seite_.filtern();
    EXPECT_EQ(gezeigt(), "A B");

    seite_.bereichGewaehlt(Filterbereich::Struktur);
    seite_.bereichGewaehlt(Filterbereich::Eigenschaften);
    seite_.zurueck();
    EXPECT_EQ(werte(), "P1");
}

TEST_F(FilterPageTest, NobodyIsLockedByFilledSteps)
{
    seite_.OpenFilterPage();
    for (int i = 0; i < 5; ++i)
        waehle(PROJEKT, "P1");
    erwarteAlleGefuellt();
    waehle(AUTOR, "Meier");
    EXPECT_EQ(werte(), "P1|P1|P1|P1|P1");
    seite_.filtern();
    EXPECT_EQ(gezeigt(), "A B C") << "applies nothing";

    seite_.OpenFilterPage(); // Left and opened again.
    seite_.zurueck();
    EXPECT_EQ(anzahl(), 5);
    seite_.filtern();
    EXPECT_EQ(gezeigt(), "A B");
}

TEST_F(FilterPageTest, SavedFiltersAreUsedAndWrittenOnLeaving)
{
    seite_.OpenFilterPage();
    welt_.meldungen.erwarte("Filterwerte", "Es sind keine Filterwerte eingetragen!");
    EXPECT_FALSE(seite_.filterSpeichern("Leer"));
    waehle(PROJEKT, "P1");
    seite_.eigenschaften().statusGewaehlt(3, true);
    EXPECT_TRUE(seite_.filterSpeichern("Projekt 1"));
    seite_.verlassen();
    Recordset zeilen;
    zeilen.Open("SELECT Feld3, Feld4 FROM Ini WHERE Feld1 = 'Mueller' AND Feld2 = 'Filterwerte'",
                session_.database.Verbindung);
    ASSERT_EQ(zeilen.RecordCount(), 1U);
    EXPECT_EQ(zeilen.Text("Feld3") + " " + zeilen.Text("Feld4"), "Part Projekt 1");

    forgetFilter(filter_, 0);
    seite_.OpenFilterPage();
    seite_.bereichGewaehlt(Filterbereich::Struktur);
    seite_.filterVerwenden("Projekt 1");
    EXPECT_EQ(seite_.kontext().bereich(), Filterbereich::Eigenschaften);
    EXPECT_EQ(werte(), "P1");
    EXPECT_EQ(filter_.status.kurz, " = 3");
    EXPECT_EQ(gezeigt(), "A B C") << "it runs with <Filtern>";

    seite_.filterLoeschen("Projekt 1");
    EXPECT_TRUE(seite_.gespeicherteFilter().empty());
    welt_.meldungen.erwarte("Filterwerte", "Es ist kein Filterwert ausgewählt!");
    seite_.filterVerwenden("");
}

TEST_F(FilterPageTest, AFavouriteRunsAtOnce)
{
    seite_.OpenFilterPage();
    waehle(PROJEKT, "P2");
    seite_.filterSpeichern("Projekt 2");
    seite_.zurueck();
    seite_.nutzeGespeicherten("Projekt 2");
    EXPECT_EQ(gezeigt(), "C");
    seite_.OpenFilterPage();
    EXPECT_EQ(werte(), "P2");
    seite_.nutzeGespeicherten("Gibt es nicht");
    EXPECT_EQ(gezeigt(), "C");
}

TEST_F(FilterPageTest, EditedValuesCount)
{
    seite_.OpenFilterPage();
    waehle(AUTOR, "Schulz");
    for (const auto& [eingabe, rest] :
         std::vector<std::pair<const char*, const char*>>{{"Meier", "A"}, {"*ei", "A"}, {"S*", "B C"}}) {
        seite_.wertGeaendert(0, eingabe);
        seite_.sterneErgaenzen();
        seite_.filtern();
        EXPECT_EQ(gezeigt(), rest) << eingabe;
    }
}

TEST_F(FilterPageTest, TheTemplateIsADrawing)
{
    const auto box = [](const std::string& pfad) {
        return "Die Datei:\n\n" + pfad +
               "\n\nkonnte nicht geöffnet werden!\n\nMögliche Ursache:\n- Kein Zugriffsrecht.\n"
               "- Falscher Pfad- und/oder Dateiname.";
    };
    std::string gezeigte = "?";
    seite_.viewer = [&](const std::string& filename) {
        gezeigte = filename;
        return filename != "W:\\Kaputt.dft";
    };
    struct Fall
    {
        const char* merkmal;
        std::string vorlage;
        bool gezeigt;
    };
    for (const Fall& fall : {Fall{"Welle", "W:\\Welle.DFT", true}, Fall{"Rad", "W:\\Rad.par", false},
                             Fall{"Kette", "W:\\Kaputt.dft", false}}) {
        dokument("V", {{"Hauptmerkmal_C", std::string(fall.merkmal)}});
        zeile("DraftTabelle", {{"DokuBez", "V"},
                               {"RevBez", "0"},
                               {"Kategorie", "QV_Vorlage"},
                               {"Hauptmerkmal_C", std::string(fall.merkmal)},
                               {"Hauptmerkmal_D", ""},
                               {"filename", fall.vorlage}});
        neuOeffnen();
        seite_.OpenFilterPage();
        seite_.bereichGewaehlt(Filterbereich::Struktur);
        seite_.zurueck();
        seite_.struktur().knotenGewaehlt({fall.merkmal});
        ASSERT_EQ(seite_.vorlagePfad(), fall.vorlage);
        if (!fall.gezeigt)
            welt_.meldungen.erwarte("Anzeigen im Viewer", box(fall.vorlage));
        seite_.vorlage(true);
        EXPECT_EQ(seite_.zeigtVorlage(), fall.gezeigt);
        seite_.vorlage(false);
        EXPECT_FALSE(seite_.zeigtVorlage());
        EXPECT_EQ(gezeigte, fall.gezeigt ? "" : gezeigte) << "the viewer is cleared";
    }
}

TEST_F(FilterPageTest, AnotherDatabaseForgetsEverything)
{
    seite_.OpenFilterPage();
    waehle(PROJEKT, "P1");
    seite_.eigenschaften().statusGewaehlt(3, true);
    seite_.datenbankWechselt();
    EXPECT_EQ(anzahl(), 0);
    EXPECT_EQ(werte(), "");
    EXPECT_EQ(filter_.status.StatusFilter, "");
    EXPECT_FALSE(session_.pages.FormSEFilternGeladen);
    seite_.entladen(); // Not loaded since: writes nothing to the new database.
}

} // namespace
} // namespace quelvarn
