#include "base/collation.h"
#include "base/collation_table.h"
#include "base/utf8.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

using namespace quelvarn;

namespace {

int signOf(int value)
{
    return (value > 0) - (value < 0);
}

std::string randomText(std::mt19937& random)
{
    static const std::vector<std::string> pieces = {"a",  "A",  "b",  "ä", "Ä", "á", "ß", "ẞ", "ss",   "S", " ",
                                                    "  ", "-",  "_",  "0", "9", "z", "ø", "Ж", "ж",    "ы", "Ω",
                                                    "ώ",  "\t", "\\", "~", "İ", "ế", "ſ", "K", "\xC3", "✓", "\x80"};
    std::string text;
    for (auto count = random() % 12; count > 0; --count)
        text += pieces[random() % pieces.size()];
    return text;
}

} // namespace

TEST(Collation, OrdersTextsAsAReaderExpects)
{
    const std::vector<std::string> ascending = {
        "",     " a",    "-a",     "_",      "0",        "10",    "2",        "a",      "A B",
        "A-B",  "Abend", "Äbend",  "Abendo", "Apfel",    "Äpfel", "Apfelmus", "Mass",   "Masse",
        "muße", "mut",   "Schräg", "Zahn",   "zahnrad1", "øre",   "Ωμεγα",    "Железо", "железо1",
    };
    for (std::size_t i = 0; i + 1 < ascending.size(); ++i) {
        EXPECT_LT(compareText(ascending[i], ascending[i + 1]), 0) << ascending[i] << " < " << ascending[i + 1];
        EXPECT_LT(sortKey(ascending[i]), sortKey(ascending[i + 1])) << ascending[i] << " < " << ascending[i + 1];
    }
}

TEST(Collation, EqualIsBlindToCaseAndTrailingBlanksOnly)
{
    EXPECT_TRUE(equalText("Flansch", "FLANSCH  "));
    EXPECT_TRUE(equalText("GRÖẞE", "größe"));
    EXPECT_TRUE(equalText("Straße", "STRASSE"));
    EXPECT_TRUE(equalText("   ", ""));
    EXPECT_TRUE(equalText("ЖЕЛЕЗО", "железо"));
    EXPECT_FALSE(equalText(" Flansch", "Flansch"));
    EXPECT_FALSE(equalText("Flänsch", "Flansch"));
    EXPECT_FALSE(equalText("A-100", "A100"));
    EXPECT_FALSE(equalText("a\t", "a"));
}

TEST(Collation, ComparingAgreesWithTheKeys)
{
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i) {
        const std::string start = i % 2 ? randomText(random) : "";
        const std::string left = start + randomText(random);
        const std::string right = start + randomText(random);
        ASSERT_EQ(signOf(compareText(left, right)), signOf(sortKey(left).compare(sortKey(right))))
            << '"' << left << "\" and \"" << right << '"';
    }
}

TEST(Collation, KeysAreTheAgreedBytes)
{
    EXPECT_EQ(sortKey("Ab 9!~\x7F"), "ab\x02"
                                     "9\x03\x22\x02");
    EXPECT_EQ(sortKey("ß"), "ss");
    const std::string key = sortKey("bÄd");
    EXPECT_EQ(key.substr(0, 5), "bad\x01\x02");
    EXPECT_EQ(key.size(), 6U);
    EXPECT_EQ(sortKey("Ж"), "ж");
    for (const CollationCharacter& character : collationCharacters()) {
        for (const char byte : sortKey(toUtf8({&character.character, 1})))
            ASSERT_NE(byte, '\0');
        ASSERT_LT(2 + character.accent, 0x7F);
    }
}

TEST(Collation, FoldingKeepsTheNumberOfCharacters)
{
    EXPECT_EQ(foldCase("GRÖẞE  "), "größe  ");
    EXPECT_EQ(foldCase("ΣΊΣΥΦΟΣ"), foldCase("σίσυφος"));
    EXPECT_EQ(foldCase("É№Ÿ"), "é№ÿ");
    EXPECT_EQ(foldCase("a\xFF"), "a\xEF\xBF\xBD");
    EXPECT_EQ(toUpper("größe ÿ ж"), "GRÖßE Ÿ Ж");
    EXPECT_EQ(toLower("GRÖẞE ΩЖ"), "größe ωж");
}
