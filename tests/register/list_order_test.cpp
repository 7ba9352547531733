// Lists come in an order of their own, however and wherever their rows are stored.
#include "database/postgres_cluster.h"
#include "documents/document_record.h"
#include "fakes/test_register.h"
#include "filter/template_lookup.h"
#include "register/detail_lists.h"
#include "register/document_questions.h"
#include "register/user_defined_rows.h"

#include <gmock/gmock.h>

namespace quelvarn {
namespace {

using ::testing::ElementsAre;

class ListOrder : public TestRegister, public ::testing::WithParamInterface<std::string_view>
{
protected:
    ListOrder() : TestRegister(test::addressOn(GetParam())) {}
    void SetUp() override
    {
        if (GetParam() == "PostgreSQL" && !test::PostgresCluster::find())
            GTEST_SKIP() << "no PostgreSQL server is installed here";
    }

    // Two fields of each row.
    static std::vector<std::string> texts(Recordset rows, std::string_view first, std::string_view second)
    {
        std::vector<std::string> texts;
        for (; !rows.eof(); rows.MoveNext())
            texts.push_back(rows.Text(first) + "|" + rows.Text(second));
        return texts;
    }

    Connection& database_ = session_.database.connection;
};

INSTANTIATE_TEST_SUITE_P(Engines, ListOrder, ::testing::Values("SQLite", "PostgreSQL"),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(ListOrder, PropertiesNotesAndAdditionalDocumentsComeByName)
{
    DokuRecord record;
    record.DokuBez = "A";
    record.RevBez = "0";
    record.filename = "W:\\A.par";
    row("Adresstabelle", {{"Kennung", "Dreherei"}});
    for (const auto& [name, value] :
         std::initializer_list<std::pair<const char*, const char*>>{{"Zulauf", "1"},
                                                                    {"Ölstand", "2"},
                                                                    {"abmessung", "b"},
                                                                    {"Dreherei", "W:\\M110214103059.txt"},
                                                                    {"Abmessung", "a"},
                                                                    {"Norm", "DIN"},
                                                                    {"Dreherei", "W:\\M100214103059.txt"}})
        row("PartTabelleBenutzDef", {{"DokuBez", "A"}, {"RevBez", "0"}, {"Name", name}, {"Wert", value}});
    EXPECT_THAT(texts(userDefinedList(database_, "PartTabelleBenutzDef", record), "Name", "Wert"),
                ElementsAre("Abmessung|a", "abmessung|b", "Norm|DIN", "Ölstand|2", "Zulauf|1"));
    EXPECT_THAT(texts(sendToList(database_, "PartTabelleBenutzDef", record), "Kennung", "SendToDatum"),
                ElementsAre("Dreherei|14.02.10  10:30", "Dreherei|14.02.11  10:30"));

    for (const char* name : {"Prüfung.doc", "Maße.txt", "prüfung.bmp"})
        row("VerbindungPartZusDoku", {{"Dokufilename", record.filename},
                                      {"ZusDokuDateiname", name},
                                      {"ZusDokufilename", "W:\\" + std::string(name)}});
    EXPECT_THAT(
        texts(additionalDocumentList(database_, world_.files, record.filename), "ZusDokuDateiname", "ZusDokuSenden"),
        ElementsAre("Maße.txt|Nein", "prüfung.bmp|Nein", "Prüfung.doc|Nein"));
}

TEST_P(ListOrder, OfSeveralTemplatesAndTiffsTheFirstByPathIsTaken)
{
    for (const char* path : {"W:\\c.dft", "W:\\A.dft", "W:\\b.dft"}) {
        row("DraftTabelle", {{"filename", path},
                             {"Kategorie", "QV_Vorlage"},
                             {"Hauptmerkmal_C", "Wellen"},
                             {"Hauptmerkmal_D", "lang"}});
        row("TIFFTabelle", {{"Dateiname", "Z.tif"}, {"filename", path}});
    }
    EXPECT_EQ(VorlageSuchen(database_, std::vector<std::string>{"Wellen", "lang"}), "W:\\A.dft");
    EXPECT_EQ(EnthaltenInTIFFTabelle(database_, "Z.dft"), "W:\\A.dft");
}

} // namespace
} // namespace quelvarn
