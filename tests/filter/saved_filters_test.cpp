#include "filter/filter_fixture.h"
#include "filter/filter_string.h"
#include "filter/saved_filters.h"
#include "filter/steps.h"

#include <gmock/gmock.h>

namespace quelvarn {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string statuses(const std::array<bool, STATUS_COUNT>& tick)
{
    std::string text;
    for (const bool set : tick)
        text += set ? '1' : '0';
    return text;
}

// What a text says: part of the page, steps, additional values, statuses.
std::string read(const SavedFilter& filter)
{
    std::string text = std::to_string(static_cast<int>(filter.section));
    for (int i = 0; i < filter.FilterAnzahl; ++i) {
        const FilterStep& step = filter.FilterSchritte[static_cast<std::size_t>(i)];
        text += " [" + step.Feldname + "," + step.value + "," + std::to_string(step.code) + "," + step.pattern + "]";
    }
    for (const AdditionalValue& value : filter.ZusBenutzDef)
        text += " +" + std::to_string(value.column) + value.value;
    return text + (filter.ChFilterStat ? " " + statuses(*filter.ChFilterStat) : "");
}

struct TextCase
{
    const char* text;
    const char* says;
};

class SavedTexts : public testing::TestWithParam<TextCase>
{};

TEST_P(SavedTexts, AreReadUpToTheFirstDamagedEntry)
{
    EXPECT_EQ(read(readFilterString(GetParam().text)), GetParam().says);
}

INSTANTIATE_TEST_SUITE_P(
    Whole, SavedTexts,
    testing::Values(TextCase{"", "0"}, TextCase{"\\110010\\\\Status|", "0 110010"},
                    TextCase{"Projekt\\A100\\0\\Projekt|\\111111\\\\Status|", "0 [Projekt,A100,0,] 111111"},
                    TextCase{"Kalender\\>= 15.11.26\\20\\Erstellt|Kalender\\<= 3.1.27\\32\\Geaendert|",
                             "0 [Erstellt,15.11.26,20,] [Geaendert,3.1.27,32,]"},
                    // The operator in front of a date counts.
                    TextCase{"Kalender\\= 15.11.26\\20\\Erstellt|", "0 [Erstellt,15.11.26,21,]"},
                    TextCase{"FilternDatum\\15.11.26\\30\\Geaendert|FilternDatum\\Meier\\0\\Bearbeiter|",
                             "0 [Geaendert,15.11.26,30,] [Bearbeiter,Meier,0,]"},
                    TextCase{"DokubezDateiFile\\*A1*\\50\\Pfad-u. Dateiname|", "0 [filename,*A1*,50,]"},
                    TextCase{"Titel\\>= 5 mm\\0\\Titel|", "0 [Titel,>= 5 mm,0,]"},
                    TextCase{"Hauptmerkmal_A\\Guss\\0\\Hauptmerkmal A|", "0 [Hauptmerkmal_A,Guss,0,]"},
                    TextCase{"Hauptmerkmal_C\\Welle\\0\\Hauptmerkmal C|Hauptmerkmal_D\\lang\\0\\Hauptmerkmal D|"
                             "StrukturMerkMaterial\\C45\\0\\Material|StrukturMerkFirma\\Alt\\0\\Firma|",
                             "1 [Hauptmerkmal_C,Welle,0,] [Hauptmerkmal_D,lang,0,] [Material,C45,0,] [Firma,Alt,0,]"},
                    TextCase{"BenutzDef\\*Stahl*\\*Stahl*\\Werkstoff|ZusBenutzDefProjekt\\A1\\\\Projekt|",
                             "2 [,Werkstoff,0,*Stahl*] +3A1"}));

INSTANTIATE_TEST_SUITE_P(
    Damaged, SavedTexts,
    testing::Values(TextCase{"Projekt\\A\\0\\Projekt|Titel\\B|Autor\\C\\0\\Autor|", "0 [Projekt,A,0,]"},
                    TextCase{"Projekt\\A\\0\\Projekt|Titel\\B\\0\\Titel\\|Autor\\C\\0\\Autor|", "0 [Projekt,A,0,]"},
                    TextCase{"Projekt\\A\\0\\Projekt|Titel\\B\\x\\Titel|", "0 [Projekt,A,0,]"},
                    TextCase{"Projekt\\A\\0\\Projekt||Titel\\B\\0\\Titel|", "0 [Projekt,A,0,]"},
                    TextCase{"Projekt\\A\\0\\Projekt|Titel\\B\\0\\Ti", "0 [Projekt,A,0,]"}, // Cut off.
                    TextCase{"Projekt\\A\\0\\Projekt|BenutzDef\\*\\*\\Werkstoff|", "0 [Projekt,A,0,]"},
                    TextCase{"ZusBenutzDefFirma\\A1\\\\Firma|", "2"}, TextCase{"StrukturMerkAutor\\A1\\0\\Autor|", "1"},
                    TextCase{"Hauptmerkmal_C\\Welle\\0\\C|Hauptmerkmal_E\\lang\\0\\E|", "1 [Hauptmerkmal_C,Welle,0,]"},
                    TextCase{"Kalender\\>= 15.11.26\\0\\Wann|", "0"}, TextCase{"FilternDatum\\Meier\\0\\|", "0"},
                    TextCase{"\\11001\\\\Status|", "0"}, TextCase{"\\110012\\\\Status|", "0"},
                    TextCase{"P\\1\\0\\P|P\\2\\0\\P|P\\3\\0\\P|P\\4\\0\\P|P\\5\\0\\P|P\\6\\0\\P|",
                             "0 [P,1,0,] [P,2,0,] [P,3,0,] [P,4,0,] [P,5,0,]"}));

class SavedFilterTest : public FilterTest
{
protected:
    SavedFilterTest()
    {
        for (Recordset& list : session_.pages.GespeicherteFilter) {
            list.appendField("Filtername", FieldType::Text);
            list.appendField("Filterstring", FieldType::Text);
            list.Open();
        }
        context_.state().ChFilterStat.fill(false);
    }

    void step(const std::string& Feldname, const std::string& value, int code = CodeText)
    {
        TypeFilter& state = context_.state();
        state.FilterSchritte[static_cast<std::size_t>(state.FilterAnzahl++)] = {Feldname, value, code, ""};
    }
    std::string saved(const std::string& name) { return SavedFilterString(session_.pages, context_.tab, name); }
};

TEST_F(SavedFilterTest, ARefusedNameSaysWhyAndSavesNothing)
{
    const std::string fifty = "ä" + std::string(49, 'x');
    struct
    {
        std::string name;
        std::string value;
        const char* text;
    } const cases[]{
        {"", "A100", "Es muss ein Name für den Filter angegeben werden!"},
        {fifty + "x", "A100", "Der Name für den Filter kann max. 50 Zeichen lang sein!"},
        {"Leer", "", "Es sind keine Filterwerte eingetragen!"},
        {"Alt", "A100", "Der Filtername 'Alt' ist bereits vorhanden!"},
        {"Pfad", "W:\\Alt", "Filterwerte mit den Zeichen \\ oder | können nicht gespeichert werden!"},
    };
    step("Projekt", "A1");
    ASSERT_TRUE(saveFilter(context_, "Alt"));
    for (const auto& testCase : cases) {
        context_.state().FilterSchritte[0].value = testCase.value;
        world_.boxes.expect("Filterwerte", testCase.text);
        EXPECT_FALSE(saveFilter(context_, testCase.name));
    }
    EXPECT_THAT(savedNames(session_.pages, 0), ElementsAre("Alt"));
    context_.state().FilterSchritte[0].value = "A100";
    EXPECT_TRUE(saveFilter(context_, fifty));
    EXPECT_TRUE(saveFilter(context_, "alt")); // Names are compared exactly.
    EXPECT_THAT(savedNames(session_.pages, 1), IsEmpty());
}

TEST_F(SavedFilterTest, TheStoredFormHoldsFiveStepsAndTheTickedStatuses)
{
    context_.state().ChFilterStat = {true, true, false, false, true, false};
    EXPECT_TRUE(saveFilter(context_, "Nur Status"));
    EXPECT_EQ(saved("Nur Status"), "\\110010\\\\Status|");
    for (const char* field : {"Hauptmerkmal_C", "Hauptmerkmal_D", "Hauptmerkmal_E", "Hauptmerkmal_F", "Hauptmerkmal_G",
                              "Material", "Firma"})
        step(field, "x");
    EXPECT_TRUE(saveFilter(context_, "Sieben"));
    EXPECT_EQ(saved("Sieben"), "Hauptmerkmal_C\\x\\0\\Hauptmerkmal_C|Hauptmerkmal_D\\x\\0\\Hauptmerkmal_D|"
                               "Hauptmerkmal_E\\x\\0\\Hauptmerkmal_E|Hauptmerkmal_F\\x\\0\\Hauptmerkmal_F|"
                               "Hauptmerkmal_G\\x\\0\\Hauptmerkmal_G|\\110010\\\\Status|");
    removeFilter(context_, "nur status");
    removeFilter(context_, "Nur Status");
    EXPECT_THAT(savedNames(session_.pages, 0), ElementsAre("Sieben"));
}

TEST_F(SavedFilterTest, AFilterInUseReplacesTheOneBefore)
{
    step("Projekt", "alt");
    context_.state().HauptwertAktiv = true;
    const std::string text = "BenutzDef\\*rot*\\*rot*\\Farbe|ZusBenutzDefAutor\\Meier\\\\Autor|\\010100\\\\Status|";
    UseSavedFilter(context_, text);
    const TypeFilter& state = context_.state();
    EXPECT_EQ(state.FilterAnzahl, 1);
    EXPECT_EQ(state.FilterSchritte[0], (FilterStep{"", "Farbe", CodeText, "*rot*"}));
    EXPECT_EQ(additionalValue(state, 0), "Meier");
    EXPECT_EQ(state.BenutzDefAnzahl(), 1);
    EXPECT_FALSE(state.HauptwertAktiv);
    EXPECT_EQ(context_.section(), FilterSection::UserDefined);
    EXPECT_EQ(filter_.status.StatusFilter, " ( Status >= 1  AND Status <= 3)");
    EXPECT_EQ(statuses(state.ChFilterStat), "011100"); // The gap is closed.
    ASSERT_TRUE(saveFilter(context_, "Wieder"));
    EXPECT_EQ(saved("Wieder"), text.substr(0, text.rfind("\\01")) + "\\011100\\\\Status|");

    UseSavedFilter(context_, "Projekt\\A\\0\\Projekt|");
    EXPECT_EQ(additionalValue(state, 0) + filter_.status.StatusFilter + statuses(state.ChFilterStat), "000000");
}

TEST_F(SavedFilterTest, RowsAreWrittenPerUserAndTypeAndOnlyWhenTheyDiffer)
{
    for (const char* user : {"Mueller", "Huber"})
        row("Ini", {{"Feld1", user},
                    {"Feld2", "Filterwerte"},
                    {"Feld3", "Part"},
                    {"Feld4", "Alt"},
                    {"Feld5", "\\100000\\\\Status|"}});
    step("Projekt", "Halle 'Ost'");
    ASSERT_TRUE(saveFilter(context_, "Meier's"));
    saveFilterLists(session_, world_.boxes);
    const auto state = [&] {
        Recordset rows;
        rows.Open("SELECT * FROM Ini WHERE Feld2 = 'Filterwerte' ORDER BY Feld1", session_.database.connection);
        std::string text;
        for (; !rows.eof(); rows.MoveNext())
            text += rows.Text("Feld1") + "/" + rows.Text("Feld3") + "/" + rows.Text("Feld4") + "/" +
                    rows.Text("Feld5") + "\n";
        return text;
    };
    EXPECT_EQ(state(), "Huber/Part/Alt/\\100000\\\\Status|\nMueller/Part/Meier's/Projekt\\Halle 'Ost'\\0\\Projekt|\n");
    engine_->removeTable("Ini");
    for (int i = 0; i < DOCUMENT_TYPE_COUNT; ++i) {
        world_.boxes.expect("Speichern der Filterwerte in die Ini-Tabelle",
                            "Fehler beim Speichern der Filterwerte in die Ini-Tabelle!");
        world_.boxes.answer(); // Fehlermeldung
    }
    saveFilterLists(session_, world_.boxes);
}

TEST_F(SavedFilterTest, StarsAreAddedWhereAValueBeginsWithOne)
{
    for (const auto& [value, afterwards] :
         {std::array{"*rot", "*rot*"}, std::array{"*rot ", "*rot*"}, std::array{"*rot*", "*rot*"},
          std::array{"rot*", "rot*"}, std::array{"rot", "rot"}, std::array{"*", "*"}}) {
        clearFilter(context_.state());
        for (const char* name : {"Farbe", "Farbe"})
            context_.state().FilterSchritte[static_cast<std::size_t>(context_.state().FilterAnzahl++)] = {
                "", name, CodeText, value};
        step("Titel", value);
        completeStars(context_);
        for (const FilterRow& row : context_.FilterWerteTabelle())
            EXPECT_EQ(row.value, afterwards);
    }
}

TEST_F(SavedFilterTest, TheFavouritesMenuTakesTwentyFive)
{
    EXPECT_EQ(favouriteList(session_.pages, session_.labels, 4).box->text,
              "Es sind keine gespeicherten Filter für Schweißteile vorhanden!");
    session_.labels.SondertabelleName[1] = "Normteile";
    EXPECT_EQ(favouriteList(session_.pages, session_.labels, 6).box->text,
              "Es sind keine gespeicherten Filter für Normteile vorhanden!");
    step("Projekt", "A1");
    for (int i = 1; i <= 26; ++i) {
        ASSERT_TRUE(saveFilter(context_, std::to_string(i)));
        const FilterFavourites favourites = favouriteList(session_.pages, session_.labels, 0);
        EXPECT_EQ(favourites.names.size(), static_cast<std::size_t>(std::min(i, 25)));
        EXPECT_EQ(favourites.box.has_value(), i > 25);
    }
    EXPECT_EQ(favouriteList(session_.pages, session_.labels, 0).box->text,
              "Das Formular ist auf max. 25 Filter ausgelegt!");
}

} // namespace

} // namespace quelvarn
