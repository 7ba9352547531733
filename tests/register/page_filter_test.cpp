#include "filter/execution.h"
#include "filter/filter_page.h"
#include "register_fixture.h"

namespace quelvarn {
namespace {

// The filter engine over the tables that the document page owns.
class PageFilterTest : public RegisterTest
{
protected:
    PageFilterTest()
    {
        for (int tab : {0, 1, 6}) {
            for (int status = 0; status < 4; ++status)
                dokument(tab, std::string(DOKUTYPEN[tab].schluessel.substr(0, 2)) + std::to_string(status), "0",
                         status);
            tabs_.chooseTab(tab);
        }
        tabs_.chooseTab(0);
    }

    void waehle(const char* feld, const char* wert) { AddFilterStep(kontext_, wert, feld, 0); }
    void status(std::initializer_list<std::size_t> stati)
    {
        auto& haken = kontext_.zustand().ChFilterStat;
        haken.fill(false);
        for (const std::size_t stat : stati)
            haken[stat] = true;
        BuildStatusFilter(filter_, kontext_.tab);
    }
    std::size_t gezeigt(int tab) { return tables_[tab].visible().RecordCount(); }

    Filterkontext kontext_{session_, operations_, filter_, tables_};
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
    EXPECT_EQ(tables_.current().state(), TableState::Filtered);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4; Filteranzahl: 2");
    EXPECT_EQ(tables_.current().narrowing().values.size(), 3U)
        << "rows of forgotten steps stay until the page renews them";
    status({});
    tabs_.back();
    EXPECT_EQ(gezeigt(0), 4U);
    EXPECT_EQ(kontext_.zustand().FilterAnzahl, 0);
}

TEST_F(PageFilterTest, ARunWithNothingChosenLiftsTheFilterThatWasThere)
{
    for (const auto bereich : {Filterbereich::Eigenschaften, Filterbereich::Struktur, Filterbereich::BenutzDef}) {
        for (const bool filtered : {false, true}) {
            kontext_.zustand().bereich = Filterbereich::Eigenschaften;
            if (filtered) {
                waehle("DokuBez", "Pa1");
                FilterEigenMerkBenutzDef(kontext_);
                ASSERT_EQ(gezeigt(0), 1U);
            }
            kontext_.zustand().bereich = bereich;
            leereFilter(kontext_.zustand());
            FilterEigenMerkBenutzDef(kontext_);
            EXPECT_EQ(tables_.current().state(), TableState::Open);
            EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4");
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
    kontext_.zustand().bereich = Filterbereich::Struktur;
    kontext_.zustand().HauptwertBereich[0] = {Decimal::ofUnits(10000), Decimal::ofUnits(20000)};
    kontext_.zustand().HauptwertAktiv = true;
    FilterEigenMerkBenutzDef(kontext_);
    EXPECT_EQ(tables_.current().state(), TableState::Filtered);
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
    tables_[6].markNewer();

    ResetAllFilters(kontext_);
    const std::size_t anzahl[]{2, 2, 3};
    for (int i = 0; const int tab : {0, 1, 6}) {
        EXPECT_EQ(gezeigt(tab), anzahl[i++]) << tab;
        EXPECT_EQ(tables_[tab].state(), TableState::Open) << tab;
        EXPECT_TRUE(tables_[tab].narrowing().values.empty()) << tab;
        EXPECT_EQ(filter_.typen[static_cast<std::size_t>(tab)].FilterString, "") << tab;
    }
    EXPECT_FALSE(tables_[3].isOpen());
    EXPECT_TRUE(kontext_.FilterWerteTabelle().empty());
    status({});
    ResetAllFilters(kontext_);
    EXPECT_EQ(gezeigt(0), 4U);
    EXPECT_EQ(gezeigt(6), 5U);
}

TEST_F(PageFilterTest, ALimitOfTheStatusesIsToldAsLongAsItNarrowsTheRows)
{
    const std::string alle = "Zugriffsberechtigung:             Alle Stati von 0 bis 5";
    const std::string kopf = "  Solid Edge - Dokumente, Bauteile, Anzahl: 4";
    const auto zeigt = [&](const std::string& zugriff, const std::string& anzahl, std::size_t zeilen) {
        EXPECT_EQ(heading_.accessText(), zugriff);
        EXPECT_EQ(heading_.isStatusLimited(), zugriff != alle);
        EXPECT_EQ(heading_.countText(), kopf + anzahl);
        ASSERT_EQ(heading_.filterRows().size(), zeilen);
        if (zugriff != alle)
            EXPECT_EQ(heading_.filterRows().back(), (FilterRow{"", "Status", " >= 2 und <= 3"}));
    };
    const std::string limit = "             Status >= 2 und <= 3";
    status({2, 3});
    zeigt(alle, "", 0); // Until a run.
    FilterEigenMerkBenutzDef(kontext_);
    zeigt(limit, "; Filteranzahl: 2", 1);
    waehle("DokuBez", "Pa3");
    FilterEigenMerkBenutzDef(kontext_);
    zeigt(limit, "; Filteranzahl: 1", 2);
    tabs_.back();
    EXPECT_EQ(tables_.current().state(), TableState::Open);
    zeigt(limit, "; Filteranzahl: 2", 1); // It stays.
    tabs_.chooseTab(1);
    EXPECT_EQ(heading_.accessText(), alle) << "this table is not narrowed";
    tabs_.chooseTab(0);
    zeigt(limit, "; Filteranzahl: 2", 1);

    kontext_.zustand().bereich = Filterbereich::Struktur;
    waehle("DokuBez", "Pa1"); // Structure features heed no status.
    FilterEigenMerkBenutzDef(kontext_);
    zeigt(alle, "; Filteranzahl: 1", 1);
    status({});
    tabs_.rebuild();
    zeigt(alle, "", 0);
}

TEST_F(PageFilterTest, TheValuesStayListedWhileTheyNarrowTheTable)
{
    FilterPage& seite = program_.filterPage;
    seite.OpenFilterPage();
    kontext_.zustand().ChFilterStat.fill(false);
    AddFilterStep(kontext_, "Pa1", "DokuBez", 0);
    seite.filtern();
    ASSERT_EQ(gezeigt(0), 1U);
    const std::vector<FilterRow> werte = heading_.filterRows();
    ASSERT_EQ(werte.size(), 1U);
    seite.bereichGewaehlt(Filterbereich::Struktur);
    EXPECT_EQ(heading_.filterRows(), werte);
    seite.zurueck();
    EXPECT_EQ(heading_.filterRows(), werte);
    EXPECT_EQ(heading_.countText(), "  Solid Edge - Dokumente, Bauteile, Anzahl: 4; Filteranzahl: 1");
    seite.filtern(); // Nothing is chosen on this part: all rows again.
    EXPECT_EQ(gezeigt(0), 4U);
    EXPECT_TRUE(heading_.filterRows().empty());
}

TEST_F(PageFilterTest, AResultOfItsOwnIsGivenUpByTheNextRunAndByTheReset)
{
    for (const bool reset : {false, true}) {
        Recordset none;
        none.FeldAnhaengen("DokuBez", FeldTyp::Text);
        none.Open();
        tables_[0].showResult(std::move(none), {});
        waehle("DokuBez", "Pa2");
        if (reset)
            ResetAllFilters(kontext_);
        else
            FilterEigenMerkBenutzDef(kontext_);
        EXPECT_EQ(liste(), reset ? "Pa0/0 Pa1/0 Pa2/0 Pa3/0 " : "Pa2/0 ");
    }
}

} // namespace
} // namespace quelvarn
