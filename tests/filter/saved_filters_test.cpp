#include "filter/execution.h"
#include "filter/filter_fixture.h"
#include "filter/filter_string.h"
#include "filter/saved_filters.h"

#include <gmock/gmock.h>

namespace quelvarn {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string stati(const std::array<bool, ANZAHL_STATUS>& haken)
{
    std::string text;
    for (const bool gesetzt : haken)
        text += gesetzt ? '1' : '0';
    return text;
}

// What a text says: part of the page, steps, additional values, statuses.
std::string gelesen(const GespeicherterFilter& filter)
{
    std::string text = std::to_string(static_cast<int>(filter.bereich));
    for (int i = 0; i < filter.FilterAnzahl; ++i) {
        const FilterSchritt& schritt = filter.FilterSchritte[static_cast<std::size_t>(i)];
        text += " [" + schritt.Feldname + "," + schritt.Wert + "," + std::to_string(schritt.code) + "," +
                schritt.Muster + "]";
    }
    for (const AdditionalValue& value : filter.ZusBenutzDef)
        text += " +" + std::to_string(value.column) + value.Wert;
    return text + (filter.ChFilterStat ? " " + stati(*filter.ChFilterStat) : "");
}

struct Textfall
{
    const char* text;
    const char* sagt;
};

class GespeicherteTexte : public testing::TestWithParam<Textfall>
{};

TEST_P(GespeicherteTexte, AreReadUpToTheFirstDamagedEntry)
{
    EXPECT_EQ(gelesen(leseFilterstring(GetParam().text)), GetParam().sagt);
}

INSTANTIATE_TEST_SUITE_P(
    Whole, GespeicherteTexte,
    testing::Values(Textfall{"", "0"}, Textfall{"\\110010\\\\Status|", "0 110010"},
                    Textfall{"Projekt\\A100\\0\\Projekt|\\111111\\\\Status|", "0 [Projekt,A100,0,] 111111"},
                    Textfall{"Kalender\\>= 15.11.26\\20\\Erstellt|Kalender\\<= 3.1.27\\32\\Geaendert|",
                             "0 [Erstellt,15.11.26,20,] [Geaendert,3.1.27,32,]"},
                    // The operator in front of a date counts.
                    Textfall{"Kalender\\= 15.11.26\\20\\Erstellt|", "0 [Erstellt,15.11.26,21,]"},
                    Textfall{"FilternDatum\\15.11.26\\30\\Geaendert|FilternDatum\\Meier\\0\\Bearbeiter|",
                             "0 [Geaendert,15.11.26,30,] [Bearbeiter,Meier,0,]"},
                    Textfall{"DokubezDateiFile\\*A1*\\50\\Pfad-u. Dateiname|", "0 [filename,*A1*,50,]"},
                    Textfall{"Titel\\>= 5 mm\\0\\Titel|", "0 [Titel,>= 5 mm,0,]"},
                    Textfall{"Hauptmerkmal_A\\Guss\\0\\Hauptmerkmal A|", "0 [Hauptmerkmal_A,Guss,0,]"},
                    Textfall{"Hauptmerkmal_C\\Welle\\0\\Hauptmerkmal C|Hauptmerkmal_D\\lang\\0\\Hauptmerkmal D|"
                             "StrukturMerkMaterial\\C45\\0\\Material|StrukturMerkFirma\\Alt\\0\\Firma|",
                             "1 [Hauptmerkmal_C,Welle,0,] [Hauptmerkmal_D,lang,0,] [Material,C45,0,] [Firma,Alt,0,]"},
                    Textfall{"BenutzDef\\*Stahl*\\*Stahl*\\Werkstoff|ZusBenutzDefProjekt\\A1\\\\Projekt|",
                             "2 [,Werkstoff,0,*Stahl*] +3A1"}));

INSTANTIATE_TEST_SUITE_P(
    Damaged, GespeicherteTexte,
    testing::Values(Textfall{"Projekt\\A\\0\\Projekt|Titel\\B|Autor\\C\\0\\Autor|", "0 [Projekt,A,0,]"},
                    Textfall{"Projekt\\A\\0\\Projekt|Titel\\B\\0\\Titel\\|Autor\\C\\0\\Autor|", "0 [Projekt,A,0,]"},
                    Textfall{"Projekt\\A\\0\\Projekt|Titel\\B\\x\\Titel|", "0 [Projekt,A,0,]"},
                    Textfall{"Projekt\\A\\0\\Projekt||Titel\\B\\0\\Titel|", "0 [Projekt,A,0,]"},
                    Textfall{"Projekt\\A\\0\\Projekt|Titel\\B\\0\\Ti", "0 [Projekt,A,0,]"}, // Cut off.
                    Textfall{"Projekt\\A\\0\\Projekt|BenutzDef\\*\\*\\Werkstoff|", "0 [Projekt,A,0,]"},
                    Textfall{"ZusBenutzDefFirma\\A1\\\\Firma|", "2"}, Textfall{"StrukturMerkAutor\\A1\\0\\Autor|", "1"},
                    Textfall{"Hauptmerkmal_C\\Welle\\0\\C|Hauptmerkmal_E\\lang\\0\\E|", "1 [Hauptmerkmal_C,Welle,0,]"},
                    Textfall{"Kalender\\>= 15.11.26\\0\\Wann|", "0"}, Textfall{"FilternDatum\\Meier\\0\\|", "0"},
                    Textfall{"\\11001\\\\Status|", "0"}, Textfall{"\\110012\\\\Status|", "0"},
                    Textfall{"P\\1\\0\\P|P\\2\\0\\P|P\\3\\0\\P|P\\4\\0\\P|P\\5\\0\\P|P\\6\\0\\P|",
                             "0 [P,1,0,] [P,2,0,] [P,3,0,] [P,4,0,] [P,5,0,]"}));

class GespeicherteFilterTest : public FilterTest
{
protected:
    GespeicherteFilterTest()
    {
        for (Recordset& liste : session_.pages.GespeicherteFilter) {
            liste.FeldAnhaengen("Filtername", FeldTyp::Text);
            liste.FeldAnhaengen("Filterstring", FeldTyp::Text);
            liste.Open();
        }
        kontext_.zustand().ChFilterStat.fill(false);
    }

    void schritt(const std::string& Feldname, const std::string& Wert, int code = CodeText)
    {
        Filterzustand& zustand = kontext_.zustand();
        zustand.FilterSchritte[static_cast<std::size_t>(zustand.FilterAnzahl++)] = {Feldname, Wert, code, ""};
    }
    std::string gespeichert(const std::string& name) { return SavedFilterString(session_, kontext_.tab, name); }
};

TEST_F(GespeicherteFilterTest, ARefusedNameSaysWhyAndSavesNothing)
{
    const std::string fuenfzig = "ä" + std::string(49, 'x');
    struct
    {
        std::string name;
        std::string wert;
        const char* text;
    } const faelle[]{
        {"", "A100", "Es muss ein Name für den Filter angegeben werden!"},
        {fuenfzig + "x", "A100", "Der Name für den Filter kann max. 50 Zeichen lang sein!"},
        {"Leer", "", "Es sind keine Filterwerte eingetragen!"},
        {"Alt", "A100", "Der Filtername 'Alt' ist bereits vorhanden!"},
        {"Pfad", "W:\\Alt", "Filterwerte mit den Zeichen \\ oder | können nicht gespeichert werden!"},
    };
    schritt("Projekt", "A1");
    ASSERT_TRUE(speichereFilter(kontext_, "Alt"));
    for (const auto& fall : faelle) {
        kontext_.zustand().FilterSchritte[0].Wert = fall.wert;
        welt_.meldungen.erwarte("Filterwerte", fall.text);
        EXPECT_FALSE(speichereFilter(kontext_, fall.name));
    }
    EXPECT_THAT(gespeicherteNamen(session_, 0), ElementsAre("Alt"));
    kontext_.zustand().FilterSchritte[0].Wert = "A100";
    EXPECT_TRUE(speichereFilter(kontext_, fuenfzig));
    EXPECT_TRUE(speichereFilter(kontext_, "alt")); // Names are compared exactly.
    EXPECT_THAT(gespeicherteNamen(session_, 1), IsEmpty());
}

TEST_F(GespeicherteFilterTest, TheStoredFormHoldsFiveStepsAndTheTickedStatuses)
{
    kontext_.zustand().ChFilterStat = {true, true, false, false, true, false};
    EXPECT_TRUE(speichereFilter(kontext_, "Nur Status"));
    EXPECT_EQ(gespeichert("Nur Status"), "\\110010\\\\Status|");
    for (const char* feld : {"Hauptmerkmal_C", "Hauptmerkmal_D", "Hauptmerkmal_E", "Hauptmerkmal_F", "Hauptmerkmal_G",
                             "Material", "Firma"})
        schritt(feld, "x");
    EXPECT_TRUE(speichereFilter(kontext_, "Sieben"));
    EXPECT_EQ(gespeichert("Sieben"), "Hauptmerkmal_C\\x\\0\\Hauptmerkmal_C|Hauptmerkmal_D\\x\\0\\Hauptmerkmal_D|"
                                     "Hauptmerkmal_E\\x\\0\\Hauptmerkmal_E|Hauptmerkmal_F\\x\\0\\Hauptmerkmal_F|"
                                     "Hauptmerkmal_G\\x\\0\\Hauptmerkmal_G|\\110010\\\\Status|");
    loescheFilter(kontext_, "nur status");
    loescheFilter(kontext_, "Nur Status");
    EXPECT_THAT(gespeicherteNamen(session_, 0), ElementsAre("Sieben"));
}

TEST_F(GespeicherteFilterTest, AFilterInUseReplacesTheOneBefore)
{
    schritt("Projekt", "alt");
    kontext_.zustand().HauptwertAktiv = true;
    const std::string text = "BenutzDef\\*rot*\\*rot*\\Farbe|ZusBenutzDefAutor\\Meier\\\\Autor|\\010100\\\\Status|";
    UseSavedFilter(kontext_, text);
    const Filterzustand& zustand = kontext_.zustand();
    EXPECT_EQ(zustand.FilterAnzahl, 1);
    EXPECT_EQ(zustand.FilterSchritte[0], (FilterSchritt{"", "Farbe", CodeText, "*rot*"}));
    EXPECT_EQ(additionalValue(zustand, 0), "Meier");
    EXPECT_EQ(zustand.BenutzDefAnzahl(), 1);
    EXPECT_FALSE(zustand.HauptwertAktiv);
    EXPECT_EQ(kontext_.bereich(), Filterbereich::BenutzDef);
    EXPECT_EQ(filter_.status.StatusFilter, " ( Status >= 1  AND Status <= 3)");
    EXPECT_EQ(stati(zustand.ChFilterStat), "011100"); // The gap is closed.
    ASSERT_TRUE(speichereFilter(kontext_, "Wieder"));
    EXPECT_EQ(gespeichert("Wieder"), text.substr(0, text.rfind("\\01")) + "\\011100\\\\Status|");

    UseSavedFilter(kontext_, "Projekt\\A\\0\\Projekt|");
    EXPECT_EQ(additionalValue(zustand, 0) + filter_.status.StatusFilter + stati(zustand.ChFilterStat), "000000");
}

TEST_F(GespeicherteFilterTest, RowsAreWrittenPerUserAndTypeAndOnlyWhenTheyDiffer)
{
    for (const char* anwender : {"Mueller", "Huber"})
        zeile("Ini", {{"Feld1", anwender},
                      {"Feld2", "Filterwerte"},
                      {"Feld3", "Part"},
                      {"Feld4", "Alt"},
                      {"Feld5", "\\100000\\\\Status|"}});
    schritt("Projekt", "Halle 'Ost'");
    ASSERT_TRUE(speichereFilter(kontext_, "Meier's"));
    speichereFilterlisten(session_, welt_.meldungen);
    const auto stand = [&] {
        Recordset zeilen;
        zeilen.Open("SELECT * FROM Ini WHERE Feld2 = 'Filterwerte' ORDER BY Feld1", session_.database.Verbindung);
        std::string text;
        for (; !zeilen.Eof(); zeilen.MoveNext())
            text += zeilen.Text("Feld1") + "/" + zeilen.Text("Feld3") + "/" + zeilen.Text("Feld4") + "/" +
                    zeilen.Text("Feld5") + "\n";
        return text;
    };
    EXPECT_EQ(stand(), "Huber/Part/Alt/\\100000\\\\Status|\nMueller/Part/Meier's/Projekt\\Halle 'Ost'\\0\\Projekt|\n");
    engine_->entferneTabelle("Ini");
    for (int i = 0; i < ANZAHL_DOKUTYPEN; ++i) {
        welt_.meldungen.erwarte("Speichern der Filterwerte in die Ini-Tabelle",
                                "Fehler beim Speichern der Filterwerte in die Ini-Tabelle!");
        welt_.meldungen.antworte(); // Fehlermeldung
    }
    speichereFilterlisten(session_, welt_.meldungen);
}

TEST_F(GespeicherteFilterTest, StarsAreAddedWhereAValueBeginsWithOne)
{
    for (const auto& [wert, danach] :
         {std::array{"*rot", "*rot*"}, std::array{"*rot ", "*rot*"}, std::array{"*rot*", "*rot*"},
          std::array{"rot*", "rot*"}, std::array{"rot", "rot"}, std::array{"*", "*"}}) {
        leereFilter(kontext_.zustand());
        for (const char* name : {"Farbe", "Farbe"})
            kontext_.zustand().FilterSchritte[static_cast<std::size_t>(kontext_.zustand().FilterAnzahl++)] = {
                "", name, CodeText, wert};
        schritt("Titel", wert);
        ergaenzeSterne(kontext_);
        for (const FilterRow& zeile : kontext_.FilterWerteTabelle())
            EXPECT_EQ(zeile.Wert, danach);
    }
}

TEST_F(GespeicherteFilterTest, TheFavouritesMenuTakesTwentyFive)
{
    EXPECT_EQ(favoritenliste(session_, 4).meldung->text,
              "Es sind keine gespeicherten Filter für Schweißteile vorhanden!");
    session_.labels.SondertabelleName[1] = "Normteile";
    EXPECT_EQ(favoritenliste(session_, 6).meldung->text, "Es sind keine gespeicherten Filter für Normteile vorhanden!");
    schritt("Projekt", "A1");
    for (int i = 1; i <= 26; ++i) {
        ASSERT_TRUE(speichereFilter(kontext_, std::to_string(i)));
        const Filterfavoriten favoriten = favoritenliste(session_, 0);
        EXPECT_EQ(favoriten.namen.size(), static_cast<std::size_t>(std::min(i, 25)));
        EXPECT_EQ(favoriten.meldung.has_value(), i > 25);
    }
    EXPECT_EQ(favoritenliste(session_, 0).meldung->text, "Das Formular ist auf max. 25 Filter ausgelegt!");
}

} // namespace

} // namespace quelvarn
