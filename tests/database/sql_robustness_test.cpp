#include "base/runtime_error.h"
#include "base/text.h"
#include "database/sql/access_text.h"
#include "database/sql/parser.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

using namespace quelvarn;
using namespace quelvarn::sql;

namespace {

// clang-format off
constexpr std::string_view BROCKEN[]{
    "'", "''", "'''", "\"", "#", "(", ")", ",", ";", "=", "<>", ">=", "*", "[", "]", ".", " ", "  ", "AND", " or ",
    " Not ", " Like ", " In (", " Between ", "Is Null", " ORDER BY ", " WHERE ", "SELECT ", "DELETE FROM Ini",
    "Feld1", "Ä_1", "3", "-1.5e2", "11/15/26", "2026-11-15 08:00:00", "\xC3", "; DROP TABLE Ini", "Müller's"};
// clang-format on

constexpr std::array<std::string_view, 5> STATEMENTS{
    "SELECT DISTINCT Feld4 FROM Ini WHERE  Feld1 = '!QV_Ini' AND (Feld3 = 'A' Or Feld3 = '') ORDER BY Feld4 DESC",
    "SELECT * FROM PartTabelle WHERE Erstellt >= #11/15/26 00:00:00# AND NOT (Status Between 1 AND 3) AND a In ('x')",
    "INSERT INTO Ini (Feld1, [Feld 2]) VALUES ('Meier', Null)",
    "UPDATE Ini SET Feld4 = 'x', Feld5 = -1.5 WHERE Ini.Feld1 = 'Meier' AND Feld2 Is Not Null",
    "DELETE * FROM CheckInOut WHERE ADNutzer > 4 AND filenameNutzer = 'W:\\Konstruktion\\Förderer\\a.par'"};

class Random
{
public:
    std::size_t until(std::size_t end) { return creator_() % end; }
    std::string_view brocken() { return BROCKEN[until(std::size(BROCKEN))]; }

    std::string chunkSequence(std::size_t atMost)
    {
        std::string text;
        for (std::size_t i = until(atMost + 1); i > 0; --i)
            text += brocken();
        return text;
    }

    // A statement with some of its bytes replaced, doubled or left out.
    std::string falsified(std::string text)
    {
        for (std::size_t i = until(4); i <= 3; ++i) {
            const std::size_t position = until(text.size());
            const std::size_t length = until(2) == 0 ? 0 : until(std::min<std::size_t>(text.size() - position, 12) + 1);
            text.replace(position, length,
                         until(5) == 0 ? std::string(1, static_cast<char>(until(256))) : std::string(brocken()));
        }
        return text;
    }

private:
    std::minstd_rand creator_{20261115};
};

} // namespace

// Whatever is accepted is one statement: written out, it reads as the same one again.
TEST(SqlRobustness, AcceptsNothingButOneStatement)
{
    Random random;
    std::size_t accepted = 0;
    for (int i = 0; i < 40000; ++i) {
        const std::string text = i % 4 == 0
                                     ? "SELECT * FROM Ini WHERE Feld1 = " + random.chunkSequence(12)
                                     : random.falsified(std::string(STATEMENTS[random.until(STATEMENTS.size())]));
        try {
            const std::string read = asAccessText(parseStatement(text));
            ++accepted;
            ASSERT_EQ(asAccessText(parseStatement(read)), read) << text;
        } catch (const RuntimeError& fault) {
            ASSERT_EQ(fault.number(), -2147217900) << text;
        }
        try {
            parseCondition(text.substr(random.until(text.size() + 1)));
        } catch (const RuntimeError&) {
        }
    }
    EXPECT_GT(accepted, 2000u);
}

TEST(SqlRobustness, ReadsEveryValueWhoseApostrophesAreDoubled)
{
    Random random;
    for (int i = 0; i < 20000; ++i) {
        const std::string value = random.chunkSequence(6);
        const std::string other = random.chunkSequence(3);
        const auto literal = [](const std::string& text) { return "'" + replaceAll(text, "'", "''") + "'"; };
        const Statement read = parseStatement("UPDATE Ini SET a = " + literal(value) + ", b=" + literal(other) +
                                              " WHERE (c = " + literal(value) + " OR d In (" + literal(other) + ", " +
                                              literal(value) + ")) AND e = 1");
        const auto& update = std::get<Update>(read);
        ASSERT_EQ(update.values.at(0).value, Value(value));
        ASSERT_EQ(update.values.at(1).value, Value(other));
        ASSERT_EQ(asAccessText(*update.where), "(([c] = " + literal(value) + " Or ([d] = " + literal(other) +
                                                   " Or [d] = " + literal(value) + ")) And [e] = 1)");
    }
}

TEST(SqlRobustness, ReadsLongTextsInTimeThatGrowsWithTheirLength)
{
    const std::vector<std::string> parts{
        "a = ''x'' AND ", "a = 'x'' AND x", "'))))))", "' AND", "a In ('x'',", "(", "[a", "NOT ", "''", "#",
        "a = '' OR "};
    const auto begin = std::chrono::steady_clock::now();
    for (const std::string& part : parts) {
        std::string text = "a = 'x";
        while (text.size() < 400000)
            text += part;
        EXPECT_THROW(parseCondition(text + "'" + std::string(400000, ' ') + "x"), RuntimeError) << part;
        EXPECT_THROW(parseCondition(text.substr(6)), RuntimeError) << part;
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
}
