#include "filter/execution.h"
#include "filter/filter_fixture.h"
#include "filter/user_defined_section.h"

#include <gmock/gmock.h>

namespace quelvarn {

namespace {

using testing::ElementsAre;

class BenutzDefTest : public FilterTest
{
protected:
    void eigenschaft(const std::string& DokuBez, const std::string& Name, const Value& Wert, const Werte& weitere = {})
    {
        std::vector<sql::Zuweisung> werte{
            {"DokuBez", DokuBez}, {"RevBez", "0"}, {"Name", Name}, {"Wert", Wert}, {"Status", 3}};
        for (const auto& [spalte, wert] : weitere) {
            std::erase_if(werte, [&](const auto& alter) { return alter.spalte == spalte; });
            werte.push_back({spalte, wert});
        }
        engine_->fuegeEin(DOKUTYPEN[static_cast<std::size_t>(kontext_.tab)].tabelleBenutzDef, werte);
    }
    void eigenschaft(const std::string& DokuBez, const std::string& Name, const char* Wert, const Werte& weitere = {})
    {
        eigenschaft(DokuBez, Name, Value(std::string(Wert)), weitere);
    }

    using Paare = std::vector<std::pair<std::string, std::string>>;
    void setze(const Paare& paare)
    {
        leereFilter(kontext_.zustand());
        for (const auto& [name, wert] : paare)
            kontext_.zustand().FilterSchritte[static_cast<std::size_t>(kontext_.zustand().FilterAnzahl++)] = {
                "", name, CodeText, wert};
    }
    // The documents found, in their order.
    std::string findet(const Paare& paare)
    {
        setze(paare);
        return laeuft();
    }
    std::string laeuft()
    {
        kontext_.zustand().bereich = Filterbereich::BenutzDef;
        FilterEigenMerkBenutzDef(kontext_);
        EXPECT_EQ(kontext_.table().state(), TableState::FilterResult);
        return gezeigt();
    }
};

TEST_F(BenutzDefTest, AValueMeetsItsPattern)
{
    const std::string langer = "W:\\Ablage\\Notizen\\2026\\Notiz_77.txt";
    ASSERT_GE(langer.size(), 32u);
    const std::string genau32 = "W:\\123456789\\1234567890\\1234.txt";
    ASSERT_EQ(genau32.size(), 32u);
    struct
    {
        Value wert;
        const char* muster;
        bool passt;
    } const faelle[]{
        {std::string("Rot matt"), "Rot matt", true},
        {std::string("Rot matt"), "rOT MATT", true},
        {std::string("Rot matt"), "Rot", false},
        {std::string("Rot matt"), "Rot*", true},
        {std::string("Rot matt"), "*ma*", true},
        {std::string("Rot matt"), "*matt", false}, // A star in front alone is no pattern of a short value.
        {std::string("*matt"), "*matt", true},
        {std::string("Rot*"), "Rot*", true},
        {std::string("Rot matt"), "R*matt", false},
        {std::string("Größe"), "GRÖSSE", true}, // One value in the lists.
        {std::string("Rot matt  "), "rot matt", true},
        {std::string("Größe"), "GRÖSSE*", false}, // In a pattern "ß" is a letter of its own.
        {std::string("50% [a_b]"), "*% [a_b]*", true},
        {std::string("50x yayby"), "*% [a_b]*", false},
        {std::string("O'Neill"), "O'Neill", true},
        {std::string(""), "*", true},
        {Value{}, "*", true},
        {Value{}, "x*", false},
        {langer, "*Notiz_77.txt", true},
        {langer, "*notiz_77.TXT", true},
        {langer, "*Notiz_7.txt", false},
        {langer, "Notiz_77.txt", false},
        {langer, "W:\\Abl*", true},
        {langer, "*VersandM1.txt", true}, // Any path of that name will do.
        {std::string("VersandM2.txt"), "*VersandM1.txt", false},
        {genau32, "*1234.txt", true},
        {genau32.substr(0, 26) + "4.txt", "*4.txt", false}, // 31 characters
    };
    dokument("A");
    for (const auto& fall : faelle) {
        engine_->fuehreAus(sql::Delete{"PartTabelleBenutzDef", nullptr});
        eigenschaft("A", "Merkmal", fall.wert);
        EXPECT_EQ(findet({{"merkMAL", fall.muster}}), fall.passt ? "A" : "")
            << alsText(fall.wert) << " / " << fall.muster;
    }
}

TEST_F(BenutzDefTest, ADocumentQualifiesByTheNumberOfItsRowsWithAHit)
{
    for (const char* name : {"B", "A", "C", "D", "E"})
        dokument(name);
    eigenschaft("A", "Farbe", "rot");
    eigenschaft("A", "Form", "rund");
    eigenschaft("B", "Form", "rund");
    eigenschaft("B ", "farbe", "ROT"); // The same document and property to the register.
    eigenschaft("C", "Farbe", "rot");
    eigenschaft("C", "Form", "eckig");
    eigenschaft("D", "Farbe", "rot"); // Two rows of one property count as two.
    eigenschaft("D", "Farbe", "rot");
    eigenschaft("E", "Farbe", "rot");
    eigenschaft("Fehlt", "Farbe", "rot"); // No document.
    EXPECT_EQ(findet({{"Farbe", "rot"}, {"Form", "rund"}}), "A B D");
    EXPECT_EQ(findet({{"Farbe", "rot"}}), "A B C D E");
    EXPECT_EQ(findet({{"Farbe", "rot"}, {"Farbe", "r*"}}), "D"); // A row counts once.
    EXPECT_EQ(findet({{"Farbe", "blau"}}), "");
    EXPECT_EQ(findet({{"", ""}, {"Farbe", "rot"}}), ""); // An empty first step is an empty filter.
}

TEST_F(BenutzDefTest, AdditionalValuesLeaveRowsOut)
{
    dokument("A");
    dokument("B");
    eigenschaft("A", "Farbe", "rot", {{"Autor", "MEIER"}, {"Material", Value{}}});
    eigenschaft("B", "Farbe", "rot", {{"Autor", "Huber"}, {"Material", "C45"}});
    setze({{"Farbe", "rot"}});
    EXPECT_EQ(laeuft(), "A B");
    kontext_.zustand().ZusBenutzDef = {{0, "Meier", ""}};
    EXPECT_EQ(laeuft(), "A");
    kontext_.zustand().ZusBenutzDef = {{2, "C45", ""}};
    EXPECT_EQ(laeuft(), "B");
    kontext_.zustand().ZusBenutzDef = {{2, "C45", ""}, {0, "Meier", ""}};
    EXPECT_EQ(laeuft(), "");
}

TEST_F(BenutzDefTest, TheResultIsInOrderAndHoldsTheDocumentsColumns)
{
    // Few documents are looked up one by one, many in one pass; small results are read whole.
    for (const int anzahl : {3, 2500}) {
        const std::string art = std::to_string(anzahl);
        engine_->beginne();
        for (int i = anzahl; i > 0; --i)
            for (const char* rev : {"1", "0"}) {
                const std::string name = "D" + art + "-" + std::to_string(10000 + i);
                zeile("PartTabelle",
                      {{"DokuBez", name}, {"RevBez", rev}, {"Titel", name + rev}, {"Hauptwert_c", 0.5 * i}});
                eigenschaft(name, "Art", art.c_str(), {{"RevBez", rev}});
            }
        engine_->schliesseAb();
        findet({{"Art", art}});
        const Recordset& zeilen = kontext_.table().visible();
        ASSERT_EQ(zeilen.RecordCount(), static_cast<std::size_t>(2 * anzahl));
        for (int i = 0; i < 2 * anzahl; ++i) {
            const auto stelle = static_cast<std::size_t>(i);
            const std::string titel = "D" + art + "-" + std::to_string(10001 + i / 2) + (i % 2 ? "1" : "0");
            ASSERT_EQ(alsText(zeilen.Zelle(stelle, "Titel")), titel);
            ASSERT_EQ(alsZahl(zeilen.Zelle(stelle, "Hauptwert_c")), 0.5 * (i / 2 + 1));
        }
        kontext_.table().visible().Filter("Titel Like '*-100020'");
        EXPECT_EQ(zeilen.RecordCount(), 1u);
    }
}

TEST_F(BenutzDefTest, NobodySeesMoreThanHisStatuses)
{
    for (const char* name : {"A", "B", "C"})
        eigenschaft(name, "Farbe", "rot", {{"Status", std::int64_t{name[0] == 'C' ? 5 : 3}}});
    dokument("A");
    dokument("B", {{"Status", 5}}); // Its properties lag behind.
    dokument("C");
    siehtStati("34");
    EXPECT_EQ(findet({{"Farbe", "rot"}}), "A");
}

TEST_F(BenutzDefTest, ASpecialTablesDocumentsAreLookedUpAmongThePartsFirst)
{
    dokument("P", {{"Titel", "Bauteil"}});
    dokument("Q", {{"Titel", "Bauteil"}});
    kontext_.tab = 6;
    dokument("Q", {{"Titel", "Sonderteil"}});
    dokument("R", {{"Titel", "Sonderteil"}});
    struct
    {
        std::vector<const char*> dokumente;
        const char* titel;
    } const faelle[]{{{"P", "Q"}, "Bauteil Bauteil "}, {{"R"}, "Sonderteil "}, {{"R", "Q"}, "Bauteil Sonderteil "}};
    for (const auto& fall : faelle) {
        engine_->fuehreAus(sql::Delete{"STbl2TabelleBenutzDef", nullptr});
        for (const char* name : fall.dokumente)
            eigenschaft(name, "Farbe", "rot");
        findet({{"Farbe", "rot"}});
        const Recordset& zeilen = kontext_.table().visible();
        std::string titel;
        for (std::size_t i = 0; i < zeilen.RecordCount(); ++i)
            titel += alsText(zeilen.Zelle(i, "Titel")) + " ";
        EXPECT_EQ(titel, fall.titel);
    }
}

TEST_F(BenutzDefTest, WhoGivesUpKeepsTheTableAsItWas)
{
    dokument("A");
    engine_->beginne();
    for (int i = 0; i < 9000; ++i)
        eigenschaft("A", "Farbe", "rot");
    engine_->schliesseAb();
    ASSERT_EQ(findet({{"Farbe", "rot"}}), "A");
    dokument("B");
    eigenschaft("B", "Farbe", "rot");
    welt_.fortschritt.geduld = false;
    EXPECT_FALSE(ApplyBenutzDefFilter(kontext_));
    EXPECT_EQ(gezeigt(), "A");
}

TEST_F(BenutzDefTest, AFaultWhileRowsAreCopiedHasItsBox)
{
    dokument("A");
    tabelle();
    eigenschaft("A", "Farbe", "rot");
    engine_->entferneTabelle("PartTabelle");
    welt_.meldungen.erwarte("SE-ModFiltern: Erstellen der Filtertabelle BenutzDef",
                            "Fehler beim Erstellen der Filtertabelle BenutzDef");
    welt_.meldungen.antworte(Antwort::Abbrechen);
    setze({{"Farbe", "rot"}});
    EXPECT_THROW(ApplyBenutzDefFilter(kontext_), ProgrammEnde);
}

class BenutzDefBereichTest : public BenutzDefTest
{
protected:
    BenutzDefBereichTest()
    {
        session_.labels.Bezeichnungen = {{"autor", "Verfasser"}, {"bearbeiter", "Änderer"}, {"material", "Stoff"}};
    }
    BenutzDefBereich bereich_{kontext_};
};

TEST_F(BenutzDefBereichTest, ListsShowWhatOccurs)
{
    const std::string pfad = "W:\\Ablage\\Notizen\\2026\\Notiz_77.txt";
    eigenschaft("A", "Farbe", "rot", {{"Autor", "Meier"}, {"Projekt", " "}});
    eigenschaft("A", "farbe", "Blau", {{"Autor", "meier"}});
    eigenschaft("A", "Farbe", "ROT", {{"Autor", "Äbtle"}});
    eigenschaft("A", "Farbe", " ");
    eigenschaft("B", "Notiz", Value(pfad));
    eigenschaft("B", "Geheim", "x", {{"Status", 5}});
    siehtStati("01234");
    bereich_.fuelleListen();
    EXPECT_THAT(bereich_.namen().werte, ElementsAre("Farbe", "Notiz"));
    EXPECT_EQ(bereich_.namen().anzahl, "2");
    EXPECT_THAT(bereich_.zusatz(0).werte, ElementsAre("Äbtle", "Meier"));
    EXPECT_THAT(bereich_.zusatz(3).werte, ElementsAre());
    bereich_.nameGewaehlt("FARBE");
    EXPECT_THAT(bereich_.werte().werte, ElementsAre("*", "Blau", "ROT"));
    bereich_.nameGewaehlt("Notiz");
    EXPECT_THAT(bereich_.werte().werte, ElementsAre("*", "*Notiz_77.txt"));
}

TEST_F(BenutzDefBereichTest, ReceiversStandInPlaceOfTheirCodesAndFilterByThem)
{
    dokument("A");
    eigenschaft("A", "Kunde", "K1");
    eigenschaft("A", "Kunde", "K2");
    eigenschaft("A", "Kunde", "Nirgends");
    for (const auto& [kennung, name, wert] :
         {std::array{"K1", "Ort", "Ulm"}, std::array{"K1", "Firma", "Alt AG"}, std::array{"K2", "Ort", "Köln"}})
        zeile("Adresstabelle", {{"Kennung", kennung}, {"Name", name}, {"Wert", wert}});
    bereich_.nameGewaehlt("Kunde");
    bereich_.setzeEmpfaenger(true);
    EXPECT_THAT(bereich_.werte().werte, ElementsAre("*", "Alt AG", "K2"));
    bereich_.wertGewaehlt("Alt AG");
    EXPECT_EQ(kontext_.FilterWerteTabelle().back(), (FilterRow{"BenutzDef", "Kunde", "K1"}));
    EXPECT_EQ(laeuft(), "A");
}

TEST_F(BenutzDefBereichTest, FivePairsAndTwoAdditionalValuesAreTaken)
{
    welt_.meldungen.erwarte("SE-Filtern: Angaben", "Angaben sind unvollständig!");
    bereich_.wertGewaehlt("rot");
    for (int i = 1; i <= 6; ++i) {
        if (i == 6)
            welt_.meldungen.erwarte("SE-Filtern: Anzahl Filterwerte",
                                    "Es können maximal 5 benutzerdefinierte Eigenschaften\n"
                                    "als Filterwerte vorgegeben werden!\n\nFilterwert 6 und 7 kann aus\n"
                                    "Verfasser / Änderer / Stoff\nausgewählt werden.");
        bereich_.nameGewaehlt("Farbe");
        bereich_.wertGewaehlt("rot" + std::to_string(i));
    }
    EXPECT_EQ(kontext_.zustand().FilterAnzahl, 5);
    EXPECT_EQ(kontext_.zustand().FilterSchritte[4], (FilterSchritt{"", "Farbe", CodeText, "rot5"}));

    welt_.meldungen.erwarte("SE-Filtern: Anzahl Filterwerte",
                            "Von den Eigenschaften\nProjekt / Verfasser / Änderer / Stoff\n"
                            "können maximal 2 Filterwerte ausgewählt werden.");
    for (const int index : {3, 0, 2})
        bereich_.zusatzGewaehlt(index, "x");
    EXPECT_THAT(kontext_.zustand().ZusBenutzDef,
                ElementsAre(AdditionalValue{3, "x", "Projekt"}, AdditionalValue{0, "x", "Verfasser"}));
    EXPECT_EQ(kontext_.FilterWerteTabelle().back(), (FilterRow{"ZusBenutzDefAutor", "Verfasser", "x"}));

    welt_.meldungen.erwarte("SE-Filter: Strukturmerkmale",
                            "Nach Auswahl\nVerfasser / Änderer / Stoff\n\n"
                            "ist die Auswahl der benutzerdefinierten Eigenschaften gesperrt!\n\n"
                            "Die Auswahl ist wieder entsperrt, wenn\nalle Filterwerte zurückgesetzt werden.");
    bereich_.wertGewaehlt("rot");
}

} // namespace

} // namespace quelvarn
