#include "filter/execution.h"
#include "register_fixture.h"

namespace quelvarn {
namespace {

// The filter engine over the tables that the document page owns.
class PageFilterTest : public RegisterTest
{
protected:
    PageFilterTest()
    {
        page_.filterVergessen = [this](int tab) { return vergissFilter(filter_, tab); };
        for (int tab : {0, 1, 6}) {
            for (int status = 0; status < 4; ++status)
                dokument(tab, std::string(DOKUTYPEN[tab].schluessel.substr(0, 2)) + std::to_string(status), "0",
                         status);
            page_.tabGewaehlt(tab);
        }
        page_.tabGewaehlt(0);
    }

    void waehle(const char* feld, const char* wert)
    {
        AddFilterStep(kontext_, wert, feld, 0);
        zeigeFilterwert(kontext_, {feld, feld, wert});
    }
    void status(std::initializer_list<std::size_t> stati)
    {
        auto& haken = kontext_.zustand().ChFilterStat;
        haken.fill(false);
        for (const std::size_t stat : stati)
            haken[stat] = true;
        BuildStatusFilter(filter_, kontext_.tab);
    }
    std::size_t gezeigt(int tab) { return page_.seite(tab).sichtbar().RecordCount(); }

    FilterState filter_;
    Filterkontext kontext_{session_, ports_, filter_, page_, 0, Filterbereich::Eigenschaften, {}, {}};
};

TEST_F(PageFilterTest, ARunShowsWhatIsLeftAndWhatWasChosen)
{
    status({1, 2});
    waehle("DokuBez", "Pa*");
    waehle("Dateiname", "Pa*");
    waehle("Projekt", "P1");
    welt_.meldungen.antworte();
    FilterEigenMerkBenutzDef(kontext_);
    EXPECT_EQ(welt_.meldungen.letzte().titel, "Filtervorgaben");
    EXPECT_EQ(liste(), "Pa1/0 Pa2/0 ");
    EXPECT_EQ(session_.AktDoku.DokuBez, "Pa1");
    EXPECT_EQ(page_.aktuelleSeite().zustand, Gefiltert);
    EXPECT_EQ(page_.anzahlText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4; Filteranzahl: 2");
    EXPECT_EQ(kontext_.zustand().gezeigteWerte.size(), 3U) << "rows of forgotten steps stay until the page renews them";
    status({});
    page_.zurueck();
    EXPECT_EQ(gezeigt(0), 4U);
    EXPECT_EQ(kontext_.zustand().FilterAnzahl, 0);
}

TEST_F(PageFilterTest, ARunWithNothingChosenLiftsTheFilterThatWasThere)
{
    for (const auto bereich : {Filterbereich::Eigenschaften, Filterbereich::Struktur, Filterbereich::BenutzDef}) {
        for (const bool filtered : {false, true}) {
            kontext_.bereich = Filterbereich::Eigenschaften;
            if (filtered) {
                waehle("DokuBez", "Pa1");
                FilterEigenMerkBenutzDef(kontext_);
                ASSERT_EQ(gezeigt(0), 1U);
            }
            kontext_.bereich = bereich;
            leereFilter(kontext_.zustand());
            FilterEigenMerkBenutzDef(kontext_);
            EXPECT_EQ(page_.aktuelleSeite().zustand, Offen);
            EXPECT_EQ(page_.anzahlText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4");
            EXPECT_EQ(gezeigt(0), 4U);
        }
    }
    waehle("DokuBez", "Pa1");
    FilterEigenMerkBenutzDef(kontext_);
    leereFilter(kontext_.zustand());
    status({2, 3});
    FilterEigenMerkBenutzDef(kontext_);
    EXPECT_EQ(gezeigt(0), 2U) << "the status condition stays";
}

TEST_F(PageFilterTest, MainValuesOfTheStructureCountThoughNoStepWasChosen)
{
    kontext_.bereich = Filterbereich::Struktur;
    kontext_.zustand().HauptwertBereich[0] = {Decimal::ofUnits(10000), Decimal::ofUnits(20000)};
    kontext_.zustand().HauptwertAktiv = true;
    FilterEigenMerkBenutzDef(kontext_);
    EXPECT_EQ(page_.aktuelleSeite().zustand, Gefiltert);
    EXPECT_EQ(gezeigt(0), 0U);
}

TEST_F(PageFilterTest, TheResetBringsEveryOpenTableBackToItsStatusCondition)
{
    waehle("DokuBez", "Pa1");
    FilterEigenMerkBenutzDef(kontext_);
    kontext_.tab = 1;
    waehle("DokuBez", "Sh1");
    FilterEigenMerkBenutzDef(kontext_);
    kontext_.tab = 0;
    status({2, 3});
    dokument(6, "STbl neu");
    page_.seite(6).zustand = NeuereDaten;

    ResetAllFilters(kontext_);
    const std::size_t anzahl[]{2, 2, 3};
    for (int i = 0; const int tab : {0, 1, 6}) {
        EXPECT_EQ(gezeigt(tab), anzahl[i++]) << tab;
        EXPECT_EQ(page_.seite(tab).zustand, Offen) << tab;
        EXPECT_FALSE(page_.seite(tab).filterListeGefuellt) << tab;
        EXPECT_EQ(filter_.typen[static_cast<std::size_t>(tab)].FilterString, "") << tab;
    }
    EXPECT_FALSE(page_.seite(3).geoeffnet());
    EXPECT_TRUE(kontext_.FilterWerteTabelle.empty());
    status({});
    ResetAllFilters(kontext_);
    EXPECT_EQ(gezeigt(0), 4U);
    EXPECT_EQ(gezeigt(6), 5U);
}

TEST_F(PageFilterTest, AResultOfItsOwnIsGivenUpByTheNextRunAndByTheReset)
{
    Tabellenseite& seite = page_.seite(0);
    for (const bool reset : {false, true}) {
        seite.FilterErgebnis.FeldAnhaengen("DokuBez", FeldTyp::Text);
        seite.FilterErgebnis.Open();
        seite.zustand = Filterergebnis;
        waehle("DokuBez", "Pa2");
        if (reset)
            ResetAllFilters(kontext_);
        else
            FilterEigenMerkBenutzDef(kontext_);
        EXPECT_FALSE(seite.FilterErgebnis.offen());
        EXPECT_EQ(liste(), reset ? "Pa0/0 Pa1/0 Pa2/0 Pa3/0 " : "Pa2/0 ");
    }
}

} // namespace
} // namespace quelvarn
