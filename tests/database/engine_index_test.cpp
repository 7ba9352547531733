#include "database/engine_fixture.h"
#include "database/new_database.h"
#include "database/sql/conditions.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

namespace quelvarn::test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

class EngineIndex : public EngineTest
{
protected:
    void SetUp() override
    {
        EngineTest::SetUp();
        if (IsSkipped())
            return;
        createRegister(*engine_);
        for (const TableSchema& table : registerSchema())
            fillTable(table);
    }

    void fillTable(const TableSchema& table)
    {
        const auto writer = engine_->bulkWriter(table.name, table.columns);
        std::vector<Value> row(table.columns.size());
        for (std::int64_t number = 0; number < 1500; ++number) {
            for (std::size_t i = 0; i < row.size(); ++i) {
                if (table.columns[i].type == FieldType::Text)
                    row[i] = fmt::format("W:\\Konstruktion\\{}-{}", table.columns[i].name, number * 7919 % 3001);
                else
                    row[i] = number % 97;
            }
            writer->row(row);
        }
        writer->end();
    }

    std::string plan(const std::string& text) const { return engine_->executionPlan(select(text)); }
};
INSTANTIATE_TEST_SUITE_P(, EngineIndex, ownEngines, engineName);

TEST_P(EngineIndex, LookUpsAreServedByTheirIndexes)
{
    struct TestCase
    {
        const char* table;
        const char* condition;
        const char* index;
    };
    const TestCase cases[] = {
        {"PartTabelle", "filename = 'w:\\x.par'", "ix_PartTabelle_filename"},
        {"PartTabelle", "filename Like 'w:\\x.par'", "ix_PartTabelle_filename"},
        {"PartTabelle", "DokuBez Like 'FA%'", "ix_PartTabelle_DokuBez"},
        {"WeldTabelle", "DokuBez = 'a' And RevBez = 'b'", "ix_WeldTabelle_DokuBez"},
        {"STbl3Tabelle", "Hauptmerkmal_C = 'a' And HauptMerkmal_D = 'b'", "ix_STbl3Tabelle_Hauptmerkmal_C"},
        {"DraftTabelle", "Kategorie = 'QV_Vorlage' And Hauptmerkmal_C = 'b'", "ix_DraftTabelle_Kategorie"},
        {"AssembTabelleBenutzDef", "DokuBez = 'a' And RevBez = 'b'", "ix_AssembTabelleBenutzDef_DokuBez"},
        {"PartTabelleBenutzDef", "Name = 'Versandart'", "ix_PartTabelleBenutzDef_Name"},
        {"ZusBauPart", "Part = 'x'", "ix_ZusBauPart_Part"},
        {"ZusBauPart", "AssembDokuBez = 'a' And AssembRevBez = 'b'", "ix_ZusBauPart_AssembDokuBez"},
        {"ZusBauSubAss", "Subassembly = 'x'", "ix_ZusBauSubAss_Subassembly"},
        {"VerbindungDraftPart", "PfadAssembPart = 'x'", "ix_VerbindungDraftPart_PfadAssembPart"},
        {"VerbindungDraftPart", "DokuBezDraft = 'a' And RevBezDraft = 'b'", "ix_VerbindungDraftPart_DokuBezDraft"},
        {"VerbindungWeldAssemb", "PfadAssemb = 'x'", "ix_VerbindungWeldAssemb_PfadAssemb"},
        {"VerbindungPartZusDoku", "Dokufilename = 'x'", "ix_VerbindungPartZusDoku_Dokufilename"},
        {"TIFFTabelle", "Dateiname = 'x.tif'", "ix_TIFFTabelle_Dateiname"},
        {"Ini", "Feld1 = 'mm' And Feld2 = 'Favoriten' And Feld3 = 'Part'", "ix_Ini_Feld1"},
        {"CheckInOut", "ADNutzer = 1 And filenameNutzer = 'x'", "ix_CheckInOut_filenameNutzer"},
        {"CheckInOut", "ADNutzer = 91 And RechnerNutzer = 'mm'", "ix_CheckInOut_ADNutzer"},
        {"Adresstabelle", "Kennung = 'x'", "ix_Adresstabelle_Kennung"},
    };
    for (const TestCase& testCase : cases)
        EXPECT_THAT(plan(fmt::format("Select * From {} Where {}", testCase.table, testCase.condition)),
                    HasSubstr(testCase.index));
}

TEST_P(EngineIndex, APatternOfAFilterThatBeginsWithTextIsARange)
{
    for (const char* pattern : {"A[1]_x*", "A[1]", "20_50%*"})
        EXPECT_THAT(
            engine_->executionPlan(sql::Query("PartTabelle").where(sql::like("DokuBez", pattern, Wildcards::Star))),
            HasSubstr("ix_PartTabelle_DokuBez"))
            << pattern;
}

TEST_P(EngineIndex, ListingComesSortedFromTheIndex)
{
    for (const char* condition : {"", "Where (Status = 0 Or Status = 3)"})
        EXPECT_THAT(
            plan(fmt::format("Select DokuBez, RevBez From PartTabelle {} Order By DokuBez, RevBez Desc", condition)),
            AllOf(HasSubstr("ix_PartTabelle_DokuBez"), Not(HasSubstr("TEMP B-TREE")), Not(HasSubstr("Sort"))));
}

} // namespace
} // namespace quelvarn::test
