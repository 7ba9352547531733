#include "database/engine_fixture.h"
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
        legeRegisterAn(*engine_);
        for (const Tabellenschema& tabelle : registerschema())
            fuelleTabelle(tabelle);
    }

    void fuelleTabelle(const Tabellenschema& tabelle)
    {
        const auto schreiber = engine_->massenschreiber(tabelle.name, tabelle.spalten);
        std::vector<Value> zeile(tabelle.spalten.size());
        for (std::int64_t nummer = 0; nummer < 1500; ++nummer) {
            for (std::size_t i = 0; i < zeile.size(); ++i) {
                if (tabelle.spalten[i].typ == FeldTyp::Text)
                    zeile[i] = fmt::format("W:\\Konstruktion\\{}-{}", tabelle.spalten[i].name, nummer * 7919 % 3001);
                else
                    zeile[i] = nummer % 97;
            }
            schreiber->zeile(zeile);
        }
        schreiber->beende();
    }

    std::string plan(const std::string& text) const { return engine_->ausfuehrungsplan(select(text)); }
};
INSTANTIATE_TEST_SUITE_P(, EngineIndex, eigeneEngines, engineName);

TEST_P(EngineIndex, LookUpsAreServedByTheirIndexes)
{
    struct Fall
    {
        const char* tabelle;
        const char* bedingung;
        const char* index;
    };
    const Fall faelle[] = {
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
    for (const Fall& fall : faelle)
        EXPECT_THAT(plan(fmt::format("Select * From {} Where {}", fall.tabelle, fall.bedingung)),
                    HasSubstr(fall.index));
}

TEST_P(EngineIndex, APatternOfAFilterThatBeginsWithTextIsARange)
{
    for (const char* pattern : {"A[1]_x*", "A[1]", "20_50%*"})
        EXPECT_THAT(
            engine_->ausfuehrungsplan(sql::Query("PartTabelle").where(sql::like("DokuBez", pattern, Wildcards::Star))),
            HasSubstr("ix_PartTabelle_DokuBez"))
            << pattern;
}

TEST_P(EngineIndex, ListingComesSortedFromTheIndex)
{
    for (const char* bedingung : {"", "Where (Status = 0 Or Status = 3)"})
        EXPECT_THAT(
            plan(fmt::format("Select DokuBez, RevBez From PartTabelle {} Order By DokuBez, RevBez Desc", bedingung)),
            AllOf(HasSubstr("ix_PartTabelle_DokuBez"), Not(HasSubstr("TEMP B-TREE")), Not(HasSubstr("Sort"))));
}

} // namespace
} // namespace quelvarn::test
