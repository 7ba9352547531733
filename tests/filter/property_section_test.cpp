#include "base/text.h"
#include "filter/execution.h"
#include "filter/filter_fixture.h"
#include "filter/property_section.h"

#include <functional>

using namespace quelvarn;

namespace {

class Eigenschaften : public FilterTest
{
protected:
    std::string liste(int index) const { return join(bereich_.liste(index).werte, "|"); }
    std::string stati() const
    {
        std::string text;
        for (int status = 0; status < ANZAHL_STATUS; ++status)
            text += bereich_.statusVorhanden(status) ? static_cast<char>('0' + status) : '-';
        return text;
    }
    void ticke(std::string_view stati)
    {
        for (int status = 0; status < ANZAHL_STATUS; ++status)
            bereich_.statusGewaehlt(status, stati.find(static_cast<char>('0' + status)) != stati.npos);
    }

    Eigenschaftsbereich bereich_{kontext_};
};

} // namespace

TEST_F(Eigenschaften, ListsHoldWhatOccursAndCountIt)
{
    struct Fall
    {
        const char* spalte;
        int index;
        std::vector<Value> zellen;
        const char* liste;
        const char* anzahl;
    };
    const Value NULLWERT{};
    const std::vector<Fall> faelle{
        {"Projekt", 1, {"B", "a", "Ä", "A1", "a"}, "a|Ä|A1|B", "4"},
        {"Titel", 2, {"Welle", "welle  ", "WELLE"}, "Welle", "1"},
        {"Thema", 3, {" ", " "}, "", "0"},
        {"Firma", 4, {"   ", ""}, "", "0"},
        {"Material", 6, {NULLWERT, "", "St 37", NULLWERT}, "St 37", "1"},
        {"Hauptmerkmal_A", 10, {" ", " ", ""}, " ", "0"},
        {"Hauptmerkmal_B", 11, {" ", "x"}, " |x", "2"},
        {"Stichwoerter", 12, {"O'Brien", "a' AND Status = '1"}, "a' AND Status = '1|O'Brien", "2"},
    };
    for (const Fall& fall : faelle)
        for (std::size_t i = 0; i < fall.zellen.size(); ++i)
            dokument(fall.spalte + std::to_string(i), {{fall.spalte, fall.zellen[i]}});
    bereich_.FilterEigenNeu();
    for (const Fall& fall : faelle) {
        EXPECT_EQ(liste(fall.index), fall.liste) << fall.spalte;
        EXPECT_EQ(bereich_.liste(fall.index).anzahl, fall.anzahl) << fall.spalte;
    }
    EXPECT_EQ(bereich_.liste(5).anzahl, "0") << "a column without values";
}

TEST_F(Eigenschaften, RunningFilterAndStatusNarrowTheLists)
{
    dokument("1", {{"Projekt", "A100"}, {"Autor", "Meier"}, {"Status", 0}});
    dokument("2", {{"Projekt", "A100"}, {"Autor", "Ober"}, {"Status", 3}});
    dokument("3", {{"Projekt", "A200"}, {"Autor", "Ulm"}, {"Status", 4}});
    dokument("4", {{"Projekt", "B"}, {"Status", 7}, {"Geaendert", Zeitpunkt::aus({2026, 11, 3})}});
    tabelle().Filter("DokuBez = '1'");

    struct Fall
    {
        const char* FilterString;
        const char* stati;
        const char* projekte;
        const char* autoren;
        const char* vorhanden;
    };
    const Fall faelle[]{
        {"", "012345", "A100|A200|B", "Meier|Ober|Ulm", "0--34-"},
        {"Projekt Like 'A*'", "012345", "A100|A200", "Meier|Ober|Ulm", "0--34-"},
        {"Projekt Like 'a100'", "012345", "A100", "Meier|Ober", "0--3--"},
        {"Projekt Like 'A*'", "45", "A200", "Ulm", "0--34-"},
        {"", "45", "A200", "Ulm", "0--34-"},
        {"Geaendert >= #11/03/26 00:00:00#", "012345", "B", "", "------"},
        {"Projekt Like 'nichts'", "012345", "", "", "------"},
    };
    for (const Fall& fall : faelle) {
        ticke(fall.stati);
        bereich_.FilterListenSchmal(fall.FilterString);
        EXPECT_EQ(liste(1), fall.projekte) << fall.FilterString << fall.stati;
        EXPECT_EQ(liste(7), fall.autoren) << fall.FilterString << fall.stati;
        EXPECT_EQ(stati(), fall.vorhanden) << fall.FilterString << fall.stati;
    }
    EXPECT_EQ(gezeigt(), "1") << "the table's own filter stays";
}

TEST_F(Eigenschaften, ChoicesBecomeSteps)
{
    struct Fall
    {
        std::function<void(Eigenschaftsbereich&)> wahl;
        FilterSchritt schritt;
        FilterRow zeile;
    };
    session_.labels.Bezeichnungen = {{"projekt", "Vorhaben"}, {"stichwörter", "Worte"}, {"hauptmerkmal a", "Klasse"}};
    const Zeitpunkt tag = Zeitpunkt::aus({2026, 11, 5});
    const Fall faelle[]{
        {[](auto& b) { b.wertGewaehlt(1, "A100"); }, {"Projekt", "A100", 0, ""}, {"Projekt", "Vorhaben", "A100"}},
        {[](auto& b) { b.wertGewaehlt(10, "x"); }, {"Hauptmerkmal_A", "x", 0, ""}, {"Hauptmerkmal_A", "Klasse", "x"}},
        {[](auto& b) { b.wertGewaehlt(12, "y"); }, {"Stichwoerter", "y", 0, ""}, {"Stichwoerter", "Worte", "y"}},
        {[&](auto& b) { b.datumGewaehlt(tag); },
         {"Erstellt", "05.11.26", 20, ""},
         {"Kalender", "Erstellt", ">= 05.11.26"}},
        {[&](auto& b) {
             b.setzeDatumsfeld(1);
             b.setzeBegrenzung(2);
             b.datumGewaehlt(tag);
         },
         {"Geaendert", "05.11.26", 32, ""},
         {"Kalender", "Geaendert", "<= 05.11.26"}},
    };
    std::size_t nummer = 0;
    bereich_.wertGewaehlt(1, "");
    for (const Fall& fall : faelle) {
        fall.wahl(bereich_);
        FilterSchritt schritt = kontext_.zustand().FilterSchritte[nummer++];
        schritt.row = {};
        EXPECT_EQ(schritt, fall.schritt);
        ASSERT_EQ(kontext_.FilterWerteTabelle().size(), nummer);
        EXPECT_EQ(kontext_.FilterWerteTabelle().back(), fall.zeile);
    }
    welt_.meldungen.erwarte("Anzahl Filter", "Alle Filter sind gefüllt!");
    bereich_.wertGewaehlt(1, "A100");
    EXPECT_EQ(kontext_.FilterWerteTabelle().size(), nummer);
}

TEST_F(Eigenschaften, ReadingGivenUpLeavesEmptyListsAndAUsablePage)
{
    dokument("1", {{"Projekt", "A100"}});
    dokument("2");
    welt_.fortschritt.geduld = false;
    bereich_.FilterEigenNeu();
    EXPECT_TRUE(bereich_.liste(1).werte.empty());
    EXPECT_TRUE(bereich_.statusVorhanden(5));
    EXPECT_EQ(welt_.fortschritt.beendet, 1);
    EXPECT_EQ(gezeigt(), "1 2");
}

TEST_F(Eigenschaften, AListThatCannotBeFilledLeavesTheOthers)
{
    engine_->entferneTabelle("PartTabelle");
    engine_->legeTabelleAn({"PartTabelle",
                            {{"DokuBez", FeldTyp::Text},
                             {"RevBez", FeldTyp::Text},
                             {"Status", FeldTyp::Ganzzahl},
                             {"Projekt", FeldTyp::Text},
                             {"Autor", FeldTyp::Text}},
                            {}});
    dokument("1", {{"Projekt", "A100"}, {"Autor", "Meier"}});
    EXPECT_THROW(bereich_.FilterEigenNeu(), Laufzeitfehler);
    EXPECT_EQ(liste(1), "A100");
    EXPECT_EQ(liste(7), "Meier");
    EXPECT_EQ(bereich_.liste(6).anzahl, "");
}
