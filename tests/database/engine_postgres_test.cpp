#include "base/collation.h"
#include "base/collation_table.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/engine_fixture.h"
#include "database/new_database.h"
#include "database/open_engine.h"

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
    std::string digits;
    for (const char character : text)
        digits += fmt::format("{:02x}", static_cast<unsigned char>(character));
    return digits;
}

std::vector<Value> checkWords()
{
    std::vector<Value> words{"", "  ", "ß ", "ẞß", "Ärmel ", "Straße", "ÀÉîõÜ", "a\tb\r\nc", "😀 x", "\x01\x7f ~"};
    for (int ascii = 1; ascii < 128; ++ascii)
        words.emplace_back(fmt::format("A{}b", static_cast<char>(ascii)));
    for (const CollationCharacter& row : collationCharacters()) {
        std::string word = "Z ";
        appendUtf8(word, row.character);
        words.emplace_back(word + "_9");
    }
    // Mixed ones: plain, German and foreign characters, frequent and rare punctuation.
    const std::u32string pool = U"aBz09 -._\\:/,()+%&;=?@[]^`{|}~'\"#$!<>*äÖüßéÑøŁżΩжЖ€–";
    std::mt19937 random(7);
    for (int number = 0; number < 400; ++number) {
        std::u32string word;
        for (unsigned length = random() % 12; length > 0; --length)
            word += pool[random() % pool.size()];
        words.emplace_back(toUtf8(word));
    }
    return words;
}

TEST_P(EnginePostgres, ServerFunctionsGiveWhatTheProgramGives)
{
    const std::vector<Value> words = checkWords();
    fillWords(words);
    const std::string output = PostgresCluster::find()->ask(
        address_, "SELECT encode(convert_to(qv_key(\"Wort\"), 'UTF8'), 'hex'), "
                  "encode(convert_to(qv_fold(\"Wort\"), 'UTF8'), 'hex') FROM \"Tafel\" ORDER BY qv_id");
    const std::vector<std::string> rows = split(output, '\n');
    ASSERT_EQ(rows.size(), words.size() + 1);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string word = asText(words[i]);
        EXPECT_EQ(rows[i], hex(sortKey(word)) + "|" + hex(foldCase(word))) << word;
    }
}

TEST_P(EnginePostgres, LongTextsAndALargeResultPassThrough)
{
    createRegister(*engine_);
    std::string longText;
    for (int i = 0; i < 20000; ++i)
        longText += fmt::format("{} ", i * 7919 % 10007);
    EXPECT_EQ(execute("Insert Into PartTabelleBenutzDef (Name, Wert) Values ('Notiz', '" + longText + "')"), 1);
    EXPECT_EQ(read("Select Wert From PartTabelleBenutzDef Where Name = 'notiz'").front(), longText);

    // A reader that is left halfway, and another one started meanwhile, disturb nobody.
    fill({{"Nr", FieldType::Integer}}, std::vector<std::vector<Value>>(5000, {std::int64_t{3}}));
    auto half = engine_->read(select("Select Nr From Tafel"), WithKey::Yes);
    ASSERT_TRUE(half->next());
    EXPECT_EQ(read("Select Nr From Tafel").size(), 5000U);
    EXPECT_EQ(rows(*half).size(), 4999U);
    half = engine_->read(select("Select Nr From Tafel"), WithKey::Yes);
    half.reset();
    EXPECT_EQ(read("Select Count(*) From Tafel").front(), "5000");
}

TEST_P(EnginePostgres, ConnectionFaultsAreToldInGerman)
{
    try {
        openPostgres("postgresql:///gibtsnicht?host=/nirgends");
        ADD_FAILURE();
    } catch (const RuntimeError& fault) {
        EXPECT_EQ(fault.source(), "PostgreSQL");
        EXPECT_THAT(fault.description(), ::testing::HasSubstr("kann nicht hergestellt werden.\n"));
    }
}

} // namespace
} // namespace quelvarn::test
