#include "register_fixture.h"

namespace quelvarn {
namespace {

using TableTest = RegisterTest;

TEST_F(TableTest, OpensTheStartTableOncePerDatabase)
{
    dokument(3, "Z-1");
    session_.Starttabelle = "Zeichnungen";
    page_.StartTabelleZeigen();
    EXPECT_EQ(page_.tab(), 3);
    EXPECT_EQ(page_.anzahlText(), "  Solid Edge - Dokumente, Zeichnungen, Anzahl: 1");
    EXPECT_EQ(page_.infoKopf(), "  Eigenschaften Zeichnung");
    for (const int tab : {0, 1, 2, 4, 5, 6, 7})
        EXPECT_EQ(page_.seite(tab).zustand, NichtOffen);

    page_.tabGewaehlt(0);
    page_.StartTabelleZeigen();
    EXPECT_EQ(page_.tab(), 0);

    page_.datenbankWechselt();
    EXPECT_EQ(page_.infoSeite(), InfoSeite::Keine);
    EXPECT_EQ(session_.AktDoku, AktuellesDokument{});
    session_.Starttabelle = "Normteile"; // No table to start with: the tab stays, nothing is opened.
    page_.StartTabelleZeigen();
    EXPECT_EQ(page_.tab(), 0);
    EXPECT_EQ(page_.seite(0).zustand, NichtOffen);
    EXPECT_EQ(page_.anzahlText(), "");
}

TEST_F(TableTest, StatusScopeLimitsFileTypesButNotSpecialTables)
{
    for (const int tab : {0, 5}) {
        for (const int status : {1, 3, 4, 5})
            dokument(tab, std::to_string(status), "0", status);
    }
    siehtStati("345");
    page_.tabGewaehlt(0);
    EXPECT_EQ(liste(), "3/0 4/0 5/0 ");
    session_.SondertabelleName[0] = "Normteile";
    page_.tabGewaehlt(5);
    EXPECT_EQ(liste(), "1/0 3/0 4/0 5/0 ");
    EXPECT_EQ(page_.anzahlText(), "  Solid Edge - Dokumente, Normteile, Anzahl: 4");
    EXPECT_EQ(page_.infoKopf(), "  Eigenschaften Normteile");
}

TEST_F(TableTest, ATableWithOnlyHiddenDocumentsIsEmpty)
{
    dokument(0, "A", "0", 1);
    dokument(1, "B");
    siehtStati("3");
    page_.tabGewaehlt(1);
    page_.tabGewaehlt(0);
    EXPECT_EQ(page_.seite(0).zustand, Leer);
    EXPECT_EQ(page_.anzahlText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 0");
    EXPECT_EQ(baum(), "");
    EXPECT_EQ(page_.infoSeite(), InfoSeite::Keine);
    EXPECT_EQ(session_.AktDoku, AktuellesDokument{});
    EXPECT_EQ(page_.dateinamePanel() + page_.ordnerPanel() + page_.statuskopf().text, "");
    page_.neuaufbauen();
    page_.zeileVor();
    page_.zurueck();
    EXPECT_EQ(page_.seite(0).zustand, Leer);
}

TEST_F(TableTest, TypeCodeOfAktDokuDependsOnWhoLoadedTheRow)
{
    const int nachZeile[] = {1, 4, 3, 2, 1, 1, 1, 1};
    const int nachTab[] = {1, 4, 3, 2, 2, 1, 1, 1};
    for (const DokuTyp& typ : DOKUTYPEN) {
        SCOPED_TRACE(typ.tabelle);
        dokument(typ.tab, "X");
        page_.tabGewaehlt(typ.tab);
        EXPECT_EQ(session_.AktDoku.Typ, nachTab[typ.tab]);
        page_.zeileGewaehlt(0);
        EXPECT_EQ(session_.AktDoku.Typ, nachZeile[typ.tab]);
        EXPECT_EQ(page_.seite(typ.tab).record.DokuArt, typ.tab == 4 ? 6 : nachZeile[typ.tab]);
    }
}

TEST_F(TableTest, ATabSwitchActsOnTheState)
{
    struct Fall
    {
        int zustand;
        int danach;
        const char* zeigt; // DokuBez of the document then shown, "" for none
        bool neuGeoeffnet;
        bool filterKnopf;
    };
    const Fall faelle[] = {
        {NichtOffen, Offen, "A", true, false},
        {Leer, Leer, "", false, false},
        {Offen, Offen, "B", false, false},
        {Gefiltert, Gefiltert, "B", false, true},
        {NeuereDaten, NeuereDaten, "B", false, true},
        {Neuaufbau, Offen, "A", true, false},
        {Filterergebnis, Filterergebnis, "F", false, false},
    };
    dokument(0, "A");
    dokument(0, "B");
    dokument(1, "F");
    dokument(2, "anderes");
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.zustand);
        page_.datenbankWechselt();
        page_.tabGewaehlt(0);
        page_.zeileGewaehlt(1);
        page_.tabGewaehlt(2);
        Tabellenseite& seite = page_.seite(0);
        seite.zustand = fall.zustand;
        seite.FilterErgebnis.Open("SELECT * FROM SheetMTabelle", session_.Verbindung);
        const unsigned fassung = seite.fassung;
        page_.tabGewaehlt(0);
        EXPECT_EQ(seite.zustand, fall.danach);
        EXPECT_EQ(session_.AktDoku.DokuBez, fall.zeigt);
        EXPECT_EQ(seite.fassung != fassung, fall.neuGeoeffnet);
        EXPECT_EQ(page_.filterKnopf(), fall.filterKnopf);
        EXPECT_EQ(page_.zurueckTooltip(),
                  fall.filterKnopf ? "Filterung aufheben, alle Dokumente anzeigen" : "Zum Anfang der Tabelle");
    }
}

TEST_F(TableTest, BehindTheLastRowComesTheFirst)
{
    dokument(0, "A");
    dokument(0, "B");
    page_.tabGewaehlt(0);
    for (const char* erwartet : {"B", "A", "B"}) {
        page_.zeileVor();
        EXPECT_EQ(session_.AktDoku.DokuBez, erwartet);
    }
    page_.seite(0).tabelle.Find("DokuBez LIKE 'Q%'", 0, Suchrichtung::Vorwaerts, true);
    page_.zeileGewechselt();
    EXPECT_EQ(session_.AktDoku.DokuBez, "A");
    page_.zeileGewaehlt(1);
    page_.zurueck();
    EXPECT_EQ(session_.AktDoku.DokuBez, "A");
}

TEST_F(TableTest, NeuaufbauReadsTheTableAnewAndStaysOnTheDocument)
{
    dokument(0, "C", "a");
    dokument(0, "E'1", "b");
    const Zeilenschluessel letztes = dokument(0, "E'1", "a");
    page_.tabGewaehlt(0);
    page_.zeileGewaehlt(2);
    page_.aenderungspanel(0) = "10:15";
    dokument(0, "A");
    dokument(0, "B");
    page_.neuaufbauen();
    EXPECT_EQ(liste(), "A/0 B/0 C/a E'1/b E'1/a "); // The higher revision first.
    EXPECT_EQ(session_.AktDoku.filename, pfad("E'1_a.par"));
    EXPECT_EQ(page_.seite(0).tabelle.AbsolutePosition(), 4u);
    EXPECT_EQ(page_.aenderungspanele()[0], "");

    engine_->loesche("PartTabelle", letztes);
    page_.neuaufbauen(); // The document is gone: the last place that there is.
    EXPECT_EQ(session_.AktDoku.filename, pfad("E'1_b.par"));

    page_.aenderungspanel(4) = "10:20";
    page_.tabGewaehlt(6);
    EXPECT_EQ(page_.aenderungspanele()[4], "10:20");
    page_.neuaufbauen(); // The special tables share the panel of the weldments.
    EXPECT_EQ(page_.aenderungspanele()[4], "");
}

TEST_F(TableTest, LiftingAFilterBringsBackAllRows)
{
    for (const char* name : {"A", "B", "C"})
        dokument(0, name);
    page_.tabGewaehlt(0);
    Tabellenseite& seite = page_.seite(0);
    const auto filtere = [&] {
        seite.tabelle.Filter("DokuBez Like 'B'");
        seite.zustand = Gefiltert;
        seite.gezeigteWerte = {{"DokuBez", "Dokumentname", "B"}};
        page_.zeileGewechselt();
    };
    filtere();
    EXPECT_EQ(page_.anzahlText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 3; Filteranzahl: 1");
    int vergessen = -1;
    page_.filterVergessen = [&](int tab) {
        vergessen = tab;
        return Statusbedingung{{}, "DokuBez >= 'B'", {}, {}}; // as a status filter would stay
    };
    page_.zurueck();
    EXPECT_EQ(vergessen, 0);
    EXPECT_EQ(liste(), "B/0 C/0 ");
    EXPECT_EQ(seite.zustand, Offen);
    EXPECT_EQ(page_.anzahlText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 3");

    page_.filterVergessen = {};
    filtere();
    dokument(0, "D");
    page_.neuaufbauen();
    EXPECT_EQ(liste(), "A/0 B/0 C/0 D/0 ");
    EXPECT_EQ(session_.AktDoku.DokuBez, "B");

    filtere();
    seite.zustand = NeuereDaten;
    dokument(0, "E");
    page_.zurueck(); // The database has newer rows: they are read.
    EXPECT_EQ(liste(), "A/0 B/0 C/0 D/0 E/0 ");
}

TEST_F(TableTest, ARowThatVanishedShowsAsFarAsItIsKnown)
{
    Zeilenschluessel weg = 0;
    engine_->beginne();
    for (int nummer = 1; nummer <= 2500; ++nummer) // Small tables are read whole and do not notice.
        weg = dokument(0, std::to_string(100000 + nummer));
    engine_->schliesseAb();
    page_.tabGewaehlt(0);
    engine_->loesche("PartTabelle", weg);
    page_.zeileGewaehlt(2499);
    EXPECT_EQ(session_.AktDoku.DokuBez, "102500");
    EXPECT_EQ(session_.AktDoku.filename, "");
    EXPECT_TRUE(page_.allgemein().nichtVorhanden);
    page_.zeileVor();
    EXPECT_EQ(session_.AktDoku.filename, pfad("100001_0.par"));
}

TEST_F(TableTest, AFailedOpeningIsReportedAndLeavesNothingShown)
{
    dokument(1, "B");
    page_.tabGewaehlt(1);
    siehtStati(""); // No visible status: no statement can be made of it.
    for (int mal = 0; mal < 2; ++mal) {
        welt_.meldungen.erwarte("Wechsel der Tabelle", "Fehler beim Wechsel der Tabelle!");
        welt_.meldungen.antworte();
        page_.tabGewaehlt(0);
        EXPECT_EQ(welt_.meldungen.letzte().titel, "Fehlermeldung");
        EXPECT_EQ(page_.tab(), 0);
        EXPECT_EQ(page_.seite(0).zustand, NichtOffen);
        EXPECT_EQ(session_.AktDoku, AktuellesDokument{});
    }
}

} // namespace
} // namespace quelvarn
