#include "base/text.h"
#include "filter/execution.h"
#include "filter/filter_fixture.h"
#include "filter/structure_section.h"
#include "filter/template_lookup.h"

using namespace quelvarn;

namespace {

constexpr const char* LOCK_TITLE = "SE-Filter: Strukturmerkmale";

class Strukturmerkmale : public FilterTest
{
protected:
    Strukturmerkmale()
    {
        kontext_.zustand().bereich = Filterbereich::Struktur;
        session_.labels.Bezeichnungen = {{"material", "Werkstoff"}, {"firma", "Kunde"}};
        teil("1", {"Welle", "lang", "glatt", "hart", "neu"}, "C45", "Meier", 10);
        teil("2", {"Welle", "lang", "glatt", "weich", ""}, "St 37", "Meier", 2.5);
        teil("3", {"Welle", "kurz", "", "", ""}, "C45", "Ober", 0);
        teil("4", {"Rohr", "kurz", "", "", ""}, "V2A", "Ulm", 7);
        teil("5", {"Bob's", "5'' Zoll", "", "", ""}, "Alu", "", 1);
        zeile("PartTabelle", {{"DokuBez", "6"}});
        bereich_.zuruecksetzen();
    }

    void teil(const std::string& DokuBez, const std::vector<std::string>& merkmale, const char* material,
              const char* firma, double wert)
    {
        dokument(DokuBez, {{"Hauptmerkmal_C", merkmale[0]},
                           {"Hauptmerkmal_D", merkmale[1]},
                           {"Hauptmerkmal_E", merkmale[2]},
                           {"Hauptmerkmal_F", merkmale[3]},
                           {"Hauptmerkmal_G", merkmale[4]},
                           {"Material", material},
                           {"Firma", firma},
                           {"Hauptwert_a", wert},
                           {"Alias_a", "alias " + DokuBez}});
    }

    static std::string alsText(const std::vector<Strukturknoten>& ebene, const std::string& einzug = "")
    {
        std::string text;
        for (const Strukturknoten& knoten : ebene)
            text += einzug + knoten.wert + "\n" + alsText(knoten.kinder, einzug + "  ");
        return text;
    }
    std::string baum() const { return alsText(bereich_.wurzel().kinder); }
    static std::string alsText(const Werteliste& liste) { return join(liste.werte, "|") + " (" + liste.anzahl + ")"; }
    std::string schritte() const
    {
        std::string text;
        for (int i = 0; i < kontext_.zustand().FilterAnzahl; ++i) {
            const FilterSchritt& schritt = kontext_.zustand().FilterSchritte[static_cast<std::size_t>(i)];
            text += schritt.Feldname + "=" + schritt.Wert + " ";
        }
        return text;
    }

    Strukturbereich bereich_{kontext_};
};

} // namespace

TEST_F(Strukturmerkmale, TreeIsWalkedDownwardsAndEachStepNarrows)
{
    EXPECT_EQ(baum(), "Bob's\nRohr\nWelle\n");
    EXPECT_EQ(alsText(bereich_.material()), "Alu|C45|St 37|V2A (4)");
    bereich_.knotenGewaehlt({});
    bereich_.knotenGewaehlt({"Welle"});
    bereich_.knotenGewaehlt({"Welle"}); // Once more: nothing.
    EXPECT_EQ(baum(), "Bob's\nRohr\nWelle\n  kurz\n  lang\n");
    EXPECT_EQ(bereich_.wurzel().kinder[2].statuszeile, "Welle; Anz. 2; ");
    EXPECT_EQ(alsText(bereich_.material()), "C45|St 37 (2)");
    EXPECT_EQ(alsText(bereich_.firma()), "Meier|Ober (2)");
    EXPECT_EQ(alsText(bereich_.werte()), "2,5|10 (2)");
    EXPECT_EQ(alsText(bereich_.alias()), "alias 1|alias 2|alias 3 (3)");

    Strukturpfad pfad{"Welle"};
    for (const char* wert : {"lang", "glatt", "hart", "neu"}) {
        pfad.emplace_back(wert);
        bereich_.knotenGewaehlt(pfad);
    }
    EXPECT_EQ(baum(), "Bob's\nRohr\nWelle\n  kurz\n  lang\n    glatt\n      hart\n        neu\n      weich\n");
    EXPECT_EQ(bereich_.StrukturBedingung(),
              "Hauptmerkmal_C = 'Welle' AND Hauptmerkmal_D = 'lang' AND Hauptmerkmal_E = 'glatt' "
              "AND Hauptmerkmal_F = 'hart' AND Hauptmerkmal_G = 'neu'");
    EXPECT_EQ(schritte(), "Hauptmerkmal_C=Welle Hauptmerkmal_D=lang Hauptmerkmal_E=glatt Hauptmerkmal_F=hart "
                          "Hauptmerkmal_G=neu ");
    EXPECT_EQ(kontext_.FilterWerteTabelle()[3], (FilterRow{"Hauptmerkmal_F", "Hauptmerkmal F", "hart"}));
    EXPECT_EQ(alsText(bereich_.material()), "C45 (1)");

    bereich_.materialGewaehlt("C45");
    bereich_.firmaGewaehlt("Meier");
    EXPECT_EQ(kontext_.zustand().FilterAnzahl, 7);
    EXPECT_EQ(kontext_.FilterWerteTabelle().back(), (FilterRow{"StrukturMerkFirma", "Kunde", "Meier"}));
}

TEST_F(Strukturmerkmale, LeavingThePathIsRefused)
{
    bereich_.knotenGewaehlt({"Welle"});
    bereich_.knotenGewaehlt({"Welle", "lang"});
    const std::string vorher = baum();
    for (const Strukturpfad& pfad : {Strukturpfad{"Welle", "kurz"}, Strukturpfad{"Rohr"}, Strukturpfad{"Welle"}}) {
        welt_.meldungen.erwarte(
            "SE-Doku: Auswahl Pfad",
            "Pfad wurde nicht eingehalten!\n\nGehen Sie über <Zurück> zum Anfang des Strukturbaumes.");
        bereich_.knotenGewaehlt(pfad);
    }
    EXPECT_EQ(baum(), vorher);
    EXPECT_EQ(schritte(), "Hauptmerkmal_C=Welle Hauptmerkmal_D=lang ");
    EXPECT_EQ(bereich_.letzterPfad(), (Strukturpfad{"Welle", "lang"}));
}

TEST_F(Strukturmerkmale, ApostrophesBelongToTheValue)
{
    bereich_.knotenGewaehlt({"Bob's"});
    bereich_.knotenGewaehlt({"Bob's", "5'' Zoll"});
    EXPECT_EQ(alsText(bereich_.material()), "Alu (1)");
    EXPECT_EQ(alsText(bereich_.werte()), "1 (1)");
    EXPECT_EQ(kontext_.zustand().FilterSchritte[1].Wert, "5'' Zoll");
}

TEST_F(Strukturmerkmale, LaterChoicesLockEarlierOnes)
{
    const std::string ende = "\n\nDie Auswahl ist wieder entsperrt, wenn\nalle Filterwerte zurückgesetzt werden.";
    bereich_.materialGewaehlt("C45");
    EXPECT_EQ(bereich_.StrukturBedingung(), " Material = 'C45'");
    EXPECT_EQ(alsText(bereich_.werte()), "10 (1)");
    welt_.meldungen.erwarte(LOCK_TITLE, "Nach Auswahl\n - Werkstoff / Kunde\noder\n- Hauptwerte a bis g\nist die "
                                        "Auswahl weiterer Strukturmerkmale\nC bis G gesperrt!" +
                                            ende);
    bereich_.knotenGewaehlt({"Welle"});
    bereich_.firmaGewaehlt("Meier");
    EXPECT_EQ(bereich_.StrukturBedingung(), " Material = 'C45' AND Firma = 'Meier'");

    bereich_.hauptwertUebernehmen("10", "");
    const std::string gesperrt =
        "Nach Auswahl\n- Hauptwerte a bis g\nist die Auswahl Werkstoff / Kunde gesperrt!" + ende;
    welt_.meldungen.erwarte(LOCK_TITLE, gesperrt);
    bereich_.materialGewaehlt("V2A");
    welt_.meldungen.erwarte(LOCK_TITLE, gesperrt);
    bereich_.firmaGewaehlt("Ulm");
    EXPECT_EQ(schritte(), "Material=C45 Firma=Meier ");

    leereFilter(kontext_.zustand());
    bereich_.zuruecksetzen();
    EXPECT_EQ(bereich_.StrukturBedingung(), "");
    bereich_.knotenGewaehlt({"Rohr"});
    EXPECT_EQ(schritte(), "Hauptmerkmal_C=Rohr ");
}

Hauptwertgrenzen bounds(std::int64_t from, std::int64_t to)
{
    return {Decimal::ofUnits(from), Decimal::ofUnits(to)};
}

TEST_F(Strukturmerkmale, MainValuesTakeAnAbsoluteBand)
{
    struct Fall
    {
        const char* CbHW;
        const char* TextBB;
        const char* keineZahl; // "" when it is taken
        Hauptwertgrenzen grenzen;
        const char* band;
    };
    const Fall faelle[]{
        {"", "1", "Kein Zahlenwert: ", {}, ""},
        {"zehn", "1", "Kein Zahlenwert: zehn", {}, ""},
        {"10", "%", "Kein Zahlenwert: %", {}, ""},
        {"9E20", "1", "Kein Zahlenwert: 9E20", {}, ""},
        {"8E14", "8E14", "Kein Zahlenwert: 8E14", {}, ""},
        {"2,5", "", "", bounds(25000, 25000), "2,5"},
        {"10", "0", "", bounds(100000, 100000), "10"},
        {"10", "0,5", "", bounds(95000, 105000), "9,5 - 10,5"},
        {"1.000", "2", "", bounds(9980000, 10020000), "998 - 1002"},
        {"0,7", "0,1", "", bounds(6000, 8000), "0,6 - 0,8"},
        {"0,3", "0,2", "", bounds(1000, 5000), "0,1 - 0,5"},
    };
    bereich_.hauptwertGewaehlt(2);
    for (const Fall& fall : faelle) {
        if (*fall.keineZahl != '\0')
            welt_.meldungen.erwarte("Zahlenwerte", fall.keineZahl);
        bereich_.hauptwertUebernehmen(fall.CbHW, fall.TextBB);
        EXPECT_EQ(kontext_.zustand().HauptwertBereich[2], fall.grenzen) << fall.CbHW;
        EXPECT_EQ(bereich_.hauptwertBand(2), fall.band) << fall.CbHW;
        EXPECT_EQ(kontext_.zustand().HauptwertAktiv, fall.grenzen.gesetzt());
    }
    bereich_.leereHauptwerte();
    EXPECT_EQ(bereich_.hauptwertBand(2), "");
    EXPECT_FALSE(kontext_.zustand().HauptwertAktiv);
    EXPECT_FALSE(bereich_.SperreBaum()) << "the locks stay";
}

TEST_F(Strukturmerkmale, BoxesDecideWhatIsCounted)
{
    bereich_.setzeAnzahlWerteZeigen(false);
    bereich_.setzeAnzahlAliasZeigen(false);
    bereich_.knotenGewaehlt({"Rohr"});
    EXPECT_EQ(alsText(bereich_.werte()), " ()");
    EXPECT_EQ(alsText(bereich_.alias()), "alias 4 ()");
    bereich_.setzeAnzahlWerteZeigen(true);
    EXPECT_EQ(alsText(bereich_.werte()), "7 (1)");
}

TEST_F(Strukturmerkmale, SavedChoicesComeBackWithTheirLocks)
{
    bereich_.stelleWiederHer(
        std::vector<FilterSchritt>{{"Hauptmerkmal_C", "Welle"}, {"Hauptmerkmal_D", "lang"}, {"Material", "C45"}});
    EXPECT_EQ(baum(), "Bob's\nRohr\nWelle\n  kurz\n  lang\n    glatt\n");
    EXPECT_EQ(bereich_.StrukturBedingung(),
              "Hauptmerkmal_C = 'Welle' AND Hauptmerkmal_D = 'lang' AND Material = 'C45'");
    EXPECT_FALSE(bereich_.SperreBaum());
    EXPECT_TRUE(bereich_.SperreMaterial());
    EXPECT_EQ(schritte(), "") << "the steps are not its business";
}

TEST_F(Strukturmerkmale, AFaultShowsTheBoxesOfItsLevelAndChangesNothing)
{
    engine_->entferneTabelle("DraftTabelle"); // The template look-up reads it.
    const std::pair<Strukturpfad, Meldung> faelle[]{
        {{"Welle"}, {"SE-Filtern: Aufbau der Strukturmerkmale D", "Fehler beim Aufbau der Strukturmerkmale D!"}},
        {{"Rohr"}, {"SE-Filtern: Aufbau der Strukturmerkmale D", "Fehler beim Aufbau der Strukturmerkmale D!"}},
    };
    for (const auto& [pfad, box] : faelle) {
        welt_.meldungen.erwarte(box.titel, box.text);
        welt_.meldungen.antworte(); // The common report.
        bereich_.knotenGewaehlt(pfad);
    }
    EXPECT_EQ(schritte(), "");
    EXPECT_EQ(bereich_.StrukturBedingung(), "");
    EXPECT_TRUE(bereich_.letzterPfad().empty());
}

TEST_F(Strukturmerkmale, TheMostExactTemplateIsFoundFirst)
{
    const auto vorlage = [&](const char* name, const Werte& merkmale) {
        std::vector<sql::Zuweisung> werte{{"DokuBez", name}, {"filename", name}, {"Kategorie", "QV_Vorlage"}};
        for (const char* leer : {"Hauptmerkmal_D", "Hauptmerkmal_E", "Hauptmerkmal_F", "Hauptmerkmal_G"})
            werte.push_back({leer, std::string()});
        for (const auto& [spalte, wert] : merkmale) {
            std::erase_if(werte, [&](const auto& zuweisung) { return zuweisung.spalte == spalte; });
            werte.push_back({spalte, wert});
        }
        engine_->fuegeEin("DraftTabelle", werte);
    };
    vorlage("g.dft", {{"Hauptmerkmal_C", "Welle"}, {"Hauptmerkmal_G", "x"}});
    vorlage("c2.dft", {{"Hauptmerkmal_C", "Welle"}});
    vorlage("c.dft", {{"Hauptmerkmal_C", "Welle"}}); // Of several on one branch the first by path.
    vorlage("d.dft", {{"Hauptmerkmal_C", "Welle"}, {"Hauptmerkmal_D", "lang"}, {"Hauptmerkmal_F", "x"}});
    vorlage("r.dft", {{"Hauptmerkmal_C", "Rohr"}, {"Hauptmerkmal_D", "kurz"}});
    zeile("DraftTabelle", {{"filename", "keine.dft"}, {"Kategorie", "Plan"}, {"Hauptmerkmal_C", "Bob's"}});

    const std::pair<std::vector<std::string>, const char*> faelle[]{
        {{"Welle"}, "c.dft"},
        {{"Welle", "lang"}, "d.dft"},
        {{"Rohr"}, "r.dft"},
        {{"Rohr", "kurz"}, "r.dft"},
        {{"Bob's"}, ""},
        {{"Welle' OR Hauptmerkmal_C Like '%"}, ""},
        {{}, ""},
        {{"Welle", "", "", "", "", ""}, ""},
    };
    for (const auto& [zweig, gefunden] : faelle)
        EXPECT_EQ(VorlageSuchen(session_.database.Verbindung, zweig), gefunden) << join(zweig, "/");

    bereich_.knotenGewaehlt({"Welle"});
    EXPECT_EQ(bereich_.vorlage(), "c.dft");
    bereich_.knotenGewaehlt({"Welle", "kurz"});
    EXPECT_EQ(bereich_.vorlage(), "c.dft") << "no template leaves the last path";
}
