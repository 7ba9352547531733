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

constexpr std::array<std::string_view, 5> ANWEISUNGEN{
    "SELECT DISTINCT Feld4 FROM Ini WHERE  Feld1 = '!QV_Ini' AND (Feld3 = 'A' Or Feld3 = '') ORDER BY Feld4 DESC",
    "SELECT * FROM PartTabelle WHERE Erstellt >= #11/15/26 00:00:00# AND NOT (Status Between 1 AND 3) AND a In ('x')",
    "INSERT INTO Ini (Feld1, [Feld 2]) VALUES ('Meier', Null)",
    "UPDATE Ini SET Feld4 = 'x', Feld5 = -1.5 WHERE Ini.Feld1 = 'Meier' AND Feld2 Is Not Null",
    "DELETE * FROM CheckInOut WHERE ADNutzer > 4 AND filenameNutzer = 'W:\\Konstruktion\\Förderer\\a.par'"};

class Zufall
{
public:
    std::size_t bis(std::size_t ende) { return erzeuger_() % ende; }
    std::string_view brocken() { return BROCKEN[bis(std::size(BROCKEN))]; }

    std::string brockenfolge(std::size_t hoechstens)
    {
        std::string text;
        for (std::size_t i = bis(hoechstens + 1); i > 0; --i)
            text += brocken();
        return text;
    }

    // A statement with some of its bytes replaced, doubled or left out.
    std::string verfaelscht(std::string text)
    {
        for (std::size_t i = bis(4); i <= 3; ++i) {
            const std::size_t stelle = bis(text.size());
            const std::size_t laenge = bis(2) == 0 ? 0 : bis(std::min<std::size_t>(text.size() - stelle, 12) + 1);
            text.replace(stelle, laenge,
                         bis(5) == 0 ? std::string(1, static_cast<char>(bis(256))) : std::string(brocken()));
        }
        return text;
    }

private:
    std::minstd_rand erzeuger_{20261115};
};

} // namespace

// Whatever is accepted is one statement: written out, it reads as the same one again.
TEST(SqlRobustness, AcceptsNothingButOneStatement)
{
    Zufall zufall;
    std::size_t angenommen = 0;
    for (int i = 0; i < 40000; ++i) {
        const std::string text = i % 4 == 0
                                     ? "SELECT * FROM Ini WHERE Feld1 = " + zufall.brockenfolge(12)
                                     : zufall.verfaelscht(std::string(ANWEISUNGEN[zufall.bis(ANWEISUNGEN.size())]));
        try {
            const std::string gelesen = alsAccessText(parseAnweisung(text));
            ++angenommen;
            ASSERT_EQ(alsAccessText(parseAnweisung(gelesen)), gelesen) << text;
        } catch (const Laufzeitfehler& fehler) {
            ASSERT_EQ(fehler.nummer(), -2147217900) << text;
        }
        try {
            parseBedingung(text.substr(zufall.bis(text.size() + 1)));
        } catch (const Laufzeitfehler&) {
        }
    }
    EXPECT_GT(angenommen, 2000u);
}

TEST(SqlRobustness, ReadsEveryValueWhoseApostrophesAreDoubled)
{
    Zufall zufall;
    for (int i = 0; i < 20000; ++i) {
        const std::string wert = zufall.brockenfolge(6);
        const std::string anderer = zufall.brockenfolge(3);
        const auto literal = [](const std::string& text) { return "'" + replaceAll(text, "'", "''") + "'"; };
        const Anweisung gelesen = parseAnweisung("UPDATE Ini SET a = " + literal(wert) + ", b=" + literal(anderer) +
                                                 " WHERE (c = " + literal(wert) + " OR d In (" + literal(anderer) +
                                                 ", " + literal(wert) + ")) AND e = 1");
        const auto& update = std::get<Update>(gelesen);
        ASSERT_EQ(update.werte.at(0).wert, Value(wert));
        ASSERT_EQ(update.werte.at(1).wert, Value(anderer));
        ASSERT_EQ(alsAccessText(*update.where), "(([c] = " + literal(wert) + " Or ([d] = " + literal(anderer) +
                                                    " Or [d] = " + literal(wert) + ")) And [e] = 1)");
    }
}

TEST(SqlRobustness, ReadsLongTextsInTimeThatGrowsWithTheirLength)
{
    const std::vector<std::string> teile{
        "a = ''x'' AND ", "a = 'x'' AND x", "'))))))", "' AND", "a In ('x'',", "(", "[a", "NOT ", "''", "#",
        "a = '' OR "};
    const auto beginn = std::chrono::steady_clock::now();
    for (const std::string& teil : teile) {
        std::string text = "a = 'x";
        while (text.size() < 400000)
            text += teil;
        EXPECT_THROW(parseBedingung(text + "'" + std::string(400000, ' ') + "x"), Laufzeitfehler) << teil;
        EXPECT_THROW(parseBedingung(text.substr(6)), Laufzeitfehler) << teil;
    }
    EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds(30));
}
