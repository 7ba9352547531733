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
    std::vector<std::string> rowsOf(InfoPageId page)
    {
        std::vector<std::string> rows;
        const Recordset* list = info_.details().list(page);
        for (std::size_t i = 0; list != nullptr && i < list->RecordCount(); ++i) {
            std::string row;
            for (const ColumnInfo& column : list->fields())
                row += "|" + asText(list->cell(i, column.name));
            rows.push_back(row.substr(1));
        }
        return rows;
    }
    void additionalDocument(const char* name, const std::string& store)
    {
        row("VerbindungPartZusDoku",
            {{"Dokufilename", documentPath("A_0.par")}, {"ZusDokuDateiname", name}, {"ZusDokufilename", store}});
    }
    DetailPages& details_ = info_.details();
    using Rows = std::vector<std::string>;
};

TEST_F(DetailPagesTest, RevisionsComeInTheTwoViewsWithoutThoseThatChangedNothing)
{
    const auto revision = [&](const char* RevBez, const Value& change, const Value& author) {
        row("SheetMTabelle", {{"DokuBez", "O'Neil"},
                              {"RevBez", RevBez},
                              {"filename", documentPath(RevBez)},
                              {"Erstellt", DateTime::from({2004, 2, 9, 7, 5, 0})},
                              {"Autor", author},
                              {"Geaendert", DateTime::from({2011, 12, 24, 0, 0, 0})},
                              {"Bearbeiter", "Weber"},
                              {"Aenderung", change}});
    };
    revision("B", "Maß korrigiert", Value());
    revision("A", "Werkstoff", "Meier");
    revision("0", "", "Meier");
    revision("C", Value(), "Meier");
    showDocument(1, "O'Neil", "A");
    info_.chooseNode(nodes::REVISION);
    const Rows created{"A|09.02.04|Meier|Werkstoff", "B|09.02.04||Maß korrigiert"};
    EXPECT_EQ(rowsOf(InfoPageId::Revisions), created);
    details_.setRevisionFilter(RevisionFilter::Edited);
    const Rows edited{"A|24.12.11|Weber|Werkstoff", "B|24.12.11|Weber|Maß korrigiert"};
    EXPECT_EQ(rowsOf(InfoPageId::Revisions), edited);
    info_.chooseNode(nodes::REVISION); // Begins with the first view again.
    EXPECT_EQ(details_.OpRevErstBearb(), RevisionFilter::Erstellt);
    EXPECT_EQ(rowsOf(InfoPageId::Revisions), created);
}

TEST_F(DetailPagesTest, UserDefinedPropertiesStandByTheirNames)
{
    addDocument(0, "A");
    for (const auto& [name, value] : std::vector<std::pair<std::string, std::string>>{{"Ölstand", "x"},
                                                                                      {"werkstoff", "S235"},
                                                                                      {"Farbe", "rot"},
                                                                                      {"Farbe", "blau"},
                                                                                      {"Zahl", "7"},
                                                                                      {"abmaß", "1"}})
        row("PartTabelleBenutzDef", {{"DokuBez", "A"}, {"RevBez", "0"}, {"Name", name}, {"Wert", value}});
    tabs_.chooseTab(0);
    info_.chooseNode(nodes::USER_DEFINED);
    const Rows sorted{"abmaß|1", "Farbe|blau", "Farbe|rot", "Ölstand|x", "werkstoff|S235", "Zahl|7"};
    EXPECT_EQ(rowsOf(InfoPageId::UserDefined), sorted);
}

TEST_F(DetailPagesTest, ARowNamedLikeAnAddressStandsOnTheSentToPageOnly)
{
    addDocument(0, "A");
    for (const auto& [name, value] : std::map<std::string, std::string>{
             {"Oberfläche", "verzinkt"}, {"dreherei", "W:\\Auftraege\\VersandM110214103059.txt"}, {"Härterei", "kurz"}})
        row("PartTabelleBenutzDef", {{"DokuBez", "A"}, {"RevBez", "0"}, {"Name", name}, {"Wert", value}});
    row("PartTabelleBenutzDef", {{"DokuBez", "A"}, {"RevBez", "1"}, {"Name", "andere"}, {"Wert", "Revision"}});
    for (const char* addressCode : {"Dreherei", "Härterei", "Dreherei"})
        row("Adresstabelle", {{"Kennung", addressCode}, {"Name", "Ort"}});
    tabs_.chooseTab(0);
    info_.chooseNode(nodes::USER_DEFINED);
    EXPECT_EQ(rowsOf(InfoPageId::UserDefined), Rows{"Oberfläche|verzinkt"});
    info_.chooseNode(nodes::SENT);
    const Rows sent{"14.02.11  10:30|dreherei|VersandM110214103059.txt|W:\\Auftraege\\VersandM110214103059.txt",
                    "|Härterei|kurz|kurz"};
    EXPECT_EQ(rowsOf(InfoPageId::SendTo), sent);
}

TEST_F(DetailPagesTest, AnOrderIsLookedForInItsFolderAndThenInTheArchive)
{
    const std::string order = "W:\\Auftraege\\Meier\\PlotQVP110214103059.txt";
    const std::string archived = "W:\\Auftraege\\Auftragsarchiv\\PlotQVP110214103059.txt";
    session_.orders.PlotPfad = "W:\\Auftraege";
    addDocument(0, "A");
    row("PartTabelleBenutzDef", {{"DokuBez", "A"}, {"RevBez", "0"}, {"Name", "K"}, {"Wert", order}});
    row("Adresstabelle", {{"Kennung", "K"}});
    tabs_.chooseTab(0);
    info_.chooseNode(nodes::SENT);
    auto& opened = world_.defaultApplication.opened;

    world_.boxes.answer(Answer::No);
    details_.openOrder();
    EXPECT_TRUE(opened.empty());
    world_.boxes.answer(Answer::Yes);
    world_.boxes.answer();
    details_.openOrder();
    EXPECT_EQ(world_.boxes.last().title, "Im Archiv nicht vorhanden");
    world_.files.create(archived);
    world_.boxes.answer(Answer::Yes);
    details_.openOrder();
    world_.files.create(order);
    details_.openOrder();
    EXPECT_EQ(opened, (Rows{archived, order}));
}

TEST_F(DetailPagesTest, TheTemplateBranchEndsAtTheFirstEmptyFeature)
{
    struct TestCase
    {
        std::vector<std::string> features; // from C
        std::size_t levels;
    };
    const TestCase cases[] = {
        {{}, 0}, {{"", "D"}, 0}, {{"Wellen"}, 1}, {{"c", "d", "", "f"}, 2}, {{"c", "d'x", "e", "f", "g"}, 5}};
    for (const TestCase& testCase : cases) {
        DokuRecord record;
        for (std::size_t i = 0; i < testCase.features.size(); ++i)
            record.StructureFeature[i + 2] = testCase.features[i];
        EXPECT_TRUE(std::ranges::equal(templateBranch(record), std::span(testCase.features).first(testCase.levels)));
    }
}

TEST_F(DetailPagesTest, MainFeaturesStandInTheirOrderWithTheTemplate)
{
    session_.labels.Bezeichnungen["hauptmerkmal b"] = "Normreihe";
    row("PartTabelle", {{"DokuBez", "M"},
                        {"Hauptmerkmal_A", "a1"},
                        {"Hauptmerkmal_C", "Wellen"},
                        {"Hauptmerkmal_D", "lang"},
                        {"Hauptmerkmal_F", "f1"},
                        {"Hauptwert_a", 1234.5},
                        {"Hauptwert_g", -0.0004},
                        {"Alias_a", "Länge"}});
    row("PartTabelle", {{"DokuBez", "N"}, {"Hauptmerkmal_C", "Wellen"}, {"Hauptmerkmal_D", "kurz"}});
    row("DraftTabelle", {{"DokuBez", "V"},
                         {"filename", "W:\\V.dft"},
                         {"Kategorie", "QV_Vorlage"},
                         {"Hauptmerkmal_C", "Wellen"},
                         {"Hauptmerkmal_D", "lang"}});
    showDocument(0, "M", "");
    info_.chooseNode(nodes::STRUCTURE_FEATURES);
    const std::string separator = "#######|############################|##########################";
    const Rows expected{
        "      A|a1|",    "      B||Normreihe", separator,        "      C|Wellen|", "      D|lang|Vorlage",
        "      E||",      "      F|f1|",        "      G||",      separator,         "      a|1.234,500|Länge",
        "      b|0,000|", "      c|0,000|",     "      d|0,000|", "      e|0,000|",  "      f|0,000|",
        "      g|0,000|"};
    EXPECT_EQ(rowsOf(InfoPageId::StructureFeatures), expected);
    EXPECT_EQ(details_.LblPfadDateiVorlage(), "W:\\V.dft");
    showDocument(0, "N", "");
    info_.chooseNode(nodes::STRUCTURE_FEATURES);
    EXPECT_EQ(details_.LblPfadDateiVorlage(), "");
    EXPECT_EQ(rowsOf(InfoPageId::StructureFeatures)[4], "      D|kurz|");
}

TEST_F(DetailPagesTest, AdditionalDocumentsAreShownAndOpened)
{
    addDocument(0, "A");
    additionalDocument("Blatt.tif", "W:\\Zus\\Blatt.tif/J");
    additionalDocument("Fehlt.doc", "W:\\Zus\\Fehlt.doc");
    additionalDocument("Text.txt", "W:\\Zus\\Text.txt/j");
    additionalDocument("Text2.txt", "W:\\Zus\\Text2.txt");
    world_.files.create("W:\\Zus\\Blatt.tif", std::string(12345, 'x'));
    world_.files.create("W:\\Zus\\Text2.txt", "Ma\xDF");
    tabs_.chooseTab(0);
    info_.chooseNode(nodes::ZUSDOKU);
    const Rows rows = rowsOf(InfoPageId::ZusDoku);
    ASSERT_EQ(rows.size(), 4U);
    const std::string state = formatDateTimeOfDay(world_.clock.now());
    EXPECT_TRUE(rows[0].starts_with(state + "|Blatt.tif|Ja|W:\\Zus\\Blatt.tif|")) << rows[0];
    EXPECT_EQ(rows[1], "|Fehlt.doc|Nein|W:\\Zus\\Fehlt.doc||");
    EXPECT_EQ(rows[2], "|Text.txt|Nein|W:\\Zus\\Text.txt/j||");
    EXPECT_EQ(details_.LblInfoZusDoku(), state + "   12.345 Byte");
    EXPECT_EQ(details_.graphicAdditionalDocument(), FilePicture());

    details_.setChViewGrafikZusDoku(true);
    EXPECT_EQ(details_.graphicAdditionalDocument().file, "W:\\Zus\\Blatt.tif");
    details_.rowChosen(InfoPageId::ZusDoku, 3);
    EXPECT_EQ(details_.graphicAdditionalDocument().text, "Maß");
    world_.boxes.answer();
    details_.rowChosen(InfoPageId::ZusDoku, 1);
    EXPECT_EQ(world_.boxes.last().title, "Im Verzeichnis nicht vorhanden");
    EXPECT_EQ(details_.graphicAdditionalDocument(), FilePicture());
    EXPECT_EQ(details_.LblInfoZusDoku(), "");
    world_.boxes.answer();
    details_.openAdditionalDocument();
    details_.rowChosen(InfoPageId::ZusDoku, 0);
    details_.openAdditionalDocument();
    EXPECT_EQ(world_.defaultApplication.opened, Rows{"W:\\Zus\\Blatt.tif"});
}

TEST_F(DetailPagesTest, TheTiffIsTheRegisteredOneOrTheOneBesideTheDrawing)
{
    addDocument(3, "Z");
    world_.files.create(documentPath("Z_0.tif"));
    tabs_.chooseTab(3);
    info_.chooseNode(nodes::TIFF);
    EXPECT_EQ(details_.tiff(), documentPath("Z_0.tif"));
    row("TIFFTabelle", {{"Dateiname", "Z_0.tif"}, {"filename", "W:\\TIFF\\Z_0.tif"}});
    world_.boxes.answer();
    info_.chooseNode(nodes::TIFF); // Registered, but not there.
    EXPECT_EQ(world_.boxes.last().title, "Im Verzeichnis nicht vorhanden");
    EXPECT_EQ(details_.tiff(), "");
    world_.files.create("W:\\TIFF\\Z_0.tif");
    info_.chooseNode(nodes::TIFF);
    EXPECT_EQ(details_.tiff(), "W:\\TIFF\\Z_0.tif");
    world_.boxes.answer();
    details_.pictureNotLoaded(InfoPageId::Tiff);
    EXPECT_EQ(details_.tiff(), "");

    row("TIFFTabelle",
        {{"Dateiname", "HB-101-20tif"}, {"filename", "W:\\TIFF\\HB-101-20.tif"}}); // As Harvel wrote some.
    EXPECT_EQ(EnthaltenInTIFFTabelle(session_.database.connection, "HB-101-20.dft"), "W:\\TIFF\\HB-101-20.tif");
}

TEST_F(DetailPagesTest, AFaultLeavesTheTreeAndAnEmptyPage)
{
    addDocument(0, "A");
    additionalDocument("Blatt.tif", "W:\\Zus\\Blatt.tif");
    tabs_.chooseTab(0);
    info_.chooseNode(nodes::ZUSDOKU);
    ASSERT_EQ(rowsOf(InfoPageId::ZusDoku).size(), 1U);
    const std::string before = tree();
    session_.database.connection.Close();
    world_.boxes.answer();
    world_.boxes.answer();
    info_.chooseNode(nodes::ZUSDOKU);
    EXPECT_EQ(tree(), before);
    EXPECT_EQ(details_.list(InfoPageId::ZusDoku), nullptr);
    EXPECT_EQ(info_.page(), InfoPageId::ZusDoku);
}

} // namespace
} // namespace quelvarn
