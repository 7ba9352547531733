#include "database/document_types.h"
#include "fakes/temp_folder.h"
#include "tools/command_call.h"

#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace quelvarn::test {
namespace {

std::int64_t count(const std::string& target, std::string_view table, const std::string& condition = {})
{
    return rows(target, "Select Count(*) From " + std::string(table) + condition).at(1).at(0);
}

TEST(SampleRegister, HasExactlyTheWantedNumberOfDocumentsAndNoFault)
{
    TempFolder folder;
    for (const int documents : {1, 13, 500, 2000}) {
        const std::string target = path(folder / std::to_string(documents));
        ASSERT_EQ(runCommand({"sample", target, "--documents", std::to_string(documents)}).result, tools::GOOD);
        std::int64_t sum = 0;
        for (const DocumentType& type : DOCUMENT_TYPES)
            sum += count(target, type.table);
        EXPECT_EQ(sum, documents);
        const Call check = runCommand({"check", target, "--strict"});
        EXPECT_EQ(check.result, tools::GOOD) << check.out;
    }
}

TEST(SampleRegister, IsTheSameForTheSameSeed)
{
    TempFolder folder;
    const auto content = [&](const std::string& name, const std::string& start) {
        const std::string target = path(folder / name);
        EXPECT_EQ(runCommand({"sample", target, "--documents", "600", "--seed", start}).result, tools::GOOD);
        std::string text;
        for (const auto& table : {"PartTabelle", "DraftTabelle", "ZusBauPart", "PartTabelleBenutzDef", "CheckInOut"})
            text += runCommand({"query", target, std::string("Select * From ") + table, "--json"}).out;
        return text;
    };
    const std::string first = content("a", "7");
    EXPECT_EQ(content("b", "7"), first);
    EXPECT_NE(content("c", "8"), first);
}

TEST(SampleRegister, OffersSomethingForEveryPageOfTheProgram)
{
    TempFolder folder;
    const std::string target = path(folder / "muster");
    ASSERT_EQ(runCommand({"sample", target}).result, tools::GOOD);
    const std::pair<std::string, std::string> sought[] = {
        {"PartTabelle", " WHERE Titel LIKE '%''%'"},
        {"PartTabelle", " WHERE Bearbeiter Is Null"},
        {"PartTabelle", " WHERE Bearbeiter LIKE ''"},
        {"PartTabelle", " WHERE RevBez = 'C'"},
        {"DraftTabelle",
         " WHERE Kategorie = 'QV_Vorlage' AND Hauptmerkmal_C = 'Wellen und Achsen' AND Hauptmerkmal_D LIKE ''"},
        {"VerbindungPartZusDoku", " WHERE ZusDokufilename LIKE '%/J'"},
        {"VerbindungDraftPart", " WHERE DokuBezDraft = 'NT-Übersicht'"},
        {"PartTabelleBenutzDef", " WHERE Wert LIKE '%VersandM%'"},
        {"Ini", " WHERE Feld1 = 'Meier' AND Feld2 = 'Favoriten'"},
        {"Ini", " WHERE Feld1 = 'Schröder' AND Feld2 = 'Filterwerte'"},
        {"CheckInOut", " WHERE ADNutzer = 91 AND RechnerNutzer = 'Meier'"},
        {"Adresstabelle", " WHERE Kennung = 'Signatur, Meier'"},
    };
    for (const auto& [table, condition] : sought)
        EXPECT_GT(count(target, table, condition), 0) << table << condition;
    for (const DocumentType& type : DOCUMENT_TYPES)
        EXPECT_GT(count(target, type.table), 20) << type.table;
    for (int status = 0; status < STATUS_COUNT; ++status)
        EXPECT_GT(count(target, "PartTabelle", " WHERE Status = " + std::to_string(status)), 5) << status;
}

TEST(SampleRegister, WritesFilesWhereTheDocumentsAre)
{
    TempFolder folder;
    const std::string target = path(folder / "muster");
    ASSERT_EQ(runCommand({"sample", target, "--documents", "300", "--files", path(folder / "w")}).result, tools::GOOD);
    const auto systemPath = [&](std::string path) {
        std::ranges::replace(path, '\\', '/');
        return folder / ("w/" + path.substr(3));
    };
    std::size_t pdfs = 0;
    for (const auto& row : rows(target, "Select filename From DraftTabelle WHERE filename LIKE 'W:%'")) {
        if (row[0] == "filename")
            continue;
        auto file = systemPath(row[0]);
        EXPECT_TRUE(exists(file)) << file;
        pdfs += exists(file.replace_extension("pdf")) ? 1 : 0;
    }
    EXPECT_GT(pdfs, 20U);
    for (const auto& row : rows(target, "Select filename From TIFFTabelle"))
        EXPECT_TRUE(row[0] == "filename" || exists(systemPath(row[0]))) << row[0];
}

} // namespace
} // namespace quelvarn::test
