#include "base/collation.h"
#include "base/collation_table.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/engine_fixture.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <random>

namespace quelvarn::test {
namespace {

class EnginePostgres : public EngineTest
{};
INSTANTIATE_TEST_SUITE_P(, EnginePostgres, ::testing::Values("PostgreSQL"), engineName);

std::string hex(std::string_view text)
{
    std::string ziffern;
    for (const char zeichen : text)
        ziffern += fmt::format("{:02x}", static_cast<unsigned char>(zeichen));
    return ziffern;
}

std::vector<Value> pruefworte()
{
    std::vector<Value> worte{"", "  ", "ß ", "ẞß", "Ärmel ", "Straße", "ÀÉîõÜ", "a\tb\r\nc", "😀 x", "\x01\x7f ~"};
    for (int ascii = 1; ascii < 128; ++ascii)
        worte.emplace_back(fmt::format("A{}b", static_cast<char>(ascii)));
    for (const Kollationszeichen& zeile : kollationszeichen()) {
        std::string wort = "Z ";
        appendUtf8(wort, zeile.zeichen);
        worte.emplace_back(wort + "_9");
    }
    // Mixed ones: plain, German and foreign characters, frequent and rare punctuation.
    const std::u32string vorrat = U"aBz09 -._\\:/,()+%&;=?@[]^`{|}~'\"#$!<>*äÖüßéÑøŁżΩжЖ€–";
    std::mt19937 zufall(7);
    for (int nummer = 0; nummer < 400; ++nummer) {
        std::u32string wort;
        for (unsigned laenge = zufall() % 12; laenge > 0; --laenge)
            wort += vorrat[zufall() % vorrat.size()];
        worte.emplace_back(toUtf8(wort));
    }
    return worte;
}

TEST_P(EnginePostgres, ServerFunctionsGiveWhatTheProgramGives)
{
    const std::vector<Value> worte = pruefworte();
    fuelleWorte(worte);
    const std::string ausgabe = PostgresCluster::find()->frage(
        adresse_, "SELECT encode(convert_to(qv_key(\"Wort\"), 'UTF8'), 'hex'), "
                  "encode(convert_to(qv_fold(\"Wort\"), 'UTF8'), 'hex') FROM \"Tafel\" ORDER BY qv_id");
    const std::vector<std::string> zeilen = split(ausgabe, '\n');
    ASSERT_EQ(zeilen.size(), worte.size() + 1);
    for (std::size_t i = 0; i < worte.size(); ++i) {
        const std::string wort = alsText(worte[i]);
        EXPECT_EQ(zeilen[i], hex(sortKey(wort)) + "|" + hex(foldCase(wort))) << wort;
    }
}

TEST_P(EnginePostgres, LongTextsAndALargeResultPassThrough)
{
    legeRegisterAn(*engine_);
    std::string lang;
    for (int i = 0; i < 20000; ++i)
        lang += fmt::format("{} ", i * 7919 % 10007);
    EXPECT_EQ(fuehreAus("Insert Into PartTabelleBenutzDef (Name, Wert) Values ('Notiz', '" + lang + "')"), 1);
    EXPECT_EQ(lies("Select Wert From PartTabelleBenutzDef Where Name = 'notiz'").front(), lang);

    // A reader that is left halfway, and another one started meanwhile, disturb nobody.
    fuelle({{"Nr", FeldTyp::Ganzzahl}}, std::vector<std::vector<Value>>(5000, {std::int64_t{3}}));
    auto halb = engine_->lese(select("Select Nr From Tafel"), MitSchluessel::Ja);
    ASSERT_TRUE(halb->next());
    EXPECT_EQ(lies("Select Nr From Tafel").size(), 5000U);
    EXPECT_EQ(zeilen(*halb).size(), 4999U);
    halb = engine_->lese(select("Select Nr From Tafel"), MitSchluessel::Ja);
    halb.reset();
    EXPECT_EQ(lies("Select Count(*) From Tafel").front(), "5000");
}

TEST_P(EnginePostgres, ConnectionFaultsAreToldInGerman)
{
    try {
        oeffnePostgres("postgresql:///gibtsnicht?host=/nirgends");
        ADD_FAILURE();
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_EQ(fehler.quelle(), "PostgreSQL");
        EXPECT_THAT(fehler.beschreibung(), ::testing::HasSubstr("kann nicht hergestellt werden.\n"));
    }
}

} // namespace
} // namespace quelvarn::test
