#include "base/runtime_error.h"
#include "database/sql/access_text.h"
#include "database/sql/parser.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace quelvarn;
using namespace quelvarn::sql;

namespace {

std::string statement(std::string_view text)
{
    try {
        return asAccessText(parseStatement(text));
    } catch (const RuntimeError& fault) {
        return fault.description();
    }
}

std::string filter(std::string_view text)
{
    try {
        const ExpressionPointer condition = parseCondition(text);
        return condition ? asAccessText(*condition) : "kein Filter";
    } catch (const RuntimeError& fault) {
        return fault.description();
    }
}

struct TestCase
{
    std::string text;
    std::string expected;
};

constexpr auto SYNTAX = "Syntaxfehler";

} // namespace

TEST(SqlParser, ReadsTheStatementsOfTheProgram)
{
    const std::vector<TestCase> cases{
        {"SELECT DISTINCT * FROM Ini WHERE Feld1 = 'Meier' AND Feld2 = 'Berechtigung'",
         "Select Distinct * From [Ini] Where ([Feld1] = 'Meier' And [Feld2] = 'Berechtigung')"},
        {"SELECT DISTINCT Feld4 FROM Ini WHERE  Feld1 = '!QV_Ini' AND Feld2 = 'WriteDB' AND (Feld3 = 'Zeitinterval' Or "
         "Feld3 = 'Timeinterval')",
         "Select Distinct [Feld4] From [Ini] Where ([Feld1] = '!QV_Ini' And [Feld2] = 'WriteDB' And "
         "([Feld3] = 'Zeitinterval' Or [Feld3] = 'Timeinterval'))"},
        {"Select * From PartTabelle WHERE (Status = 0 OR Status = 1) ORDER BY DokuBez, RevBez DESC",
         "Select * From [PartTabelle] Where ([Status] = 0 Or [Status] = 1) Order By [DokuBez], [RevBez] Desc"},
        {"Select * From PartTabelleBenutzDef ORDER BY DokuBez, RevBez ",
         "Select * From [PartTabelleBenutzDef] Order By [DokuBez], [RevBez]"},
        {"SELECT DISTINCT Projekt FROM PartTabelle WHERE Projekt NOT LIKE '' AND Projekt NOT LIKE ' ' And Titel Like "
         "'A%' AND Erstellt >= #11/15/26 00:00:00# AND ( Status >= 1  AND Status <= 3)",
         "Select Distinct [Projekt] From [PartTabelle] Where ([Projekt] Not Like '' And [Projekt] Not Like ' ' And "
         "[Titel] Like 'A%' And [Erstellt] >= #11/15/2026 00:00:00# And ([Status] >= 1 And [Status] <= 3))"},
        {"SELECT DISTINCT Hauptwert_a FROM PartTabelle WHERE  Hauptwert_a <> 0 AND Hauptmerkmal_C = 'Wellen' AND "
         " Material = 'C45'",
         "Select Distinct [Hauptwert_a] From [PartTabelle] Where ([Hauptwert_a] <> 0 And [Hauptmerkmal_C] = 'Wellen' "
         "And [Material] = 'C45')"},
        {"SELECT DISTINCT HauptMerkmal_C FROM PartTabelle WHERE HauptMerkmal_C NOT LIKE '' ",
         "Select Distinct [HauptMerkmal_C] From [PartTabelle] Where [HauptMerkmal_C] Not Like ''"},
        {"SELECT DISTINCT filename FROM DraftTabelle WHERE Kategorie LIKE 'QV_Vorlage' AND Hauptmerkmal_D like ''",
         "Select Distinct [filename] From [DraftTabelle] Where ([Kategorie] Like 'QV_Vorlage' And "
         "[Hauptmerkmal_D] Like '')"},
        {"SELECT * FROM CheckInOut WHERE ADNutzer = 1 AND Not (AnwenderNutzer = 'Meier' AND RechnerNutzer = 'WS04')",
         "Select * From [CheckInOut] Where ([ADNutzer] = 1 And Not ([AnwenderNutzer] = 'Meier' And "
         "[RechnerNutzer] = 'WS04'))"},
        {"SELECT * FROM CheckInOut WHERE ADNutzer = 91  AND RechnerNutzer = 'Meier'",
         "Select * From [CheckInOut] Where ([ADNutzer] = 91 And [RechnerNutzer] = 'Meier')"},
        {"SELECT DISTINCT Part FROM ZusBauPart WHERE AssembDokuBez = 'FA-1220-330' AND AssembRevBez = '5'",
         "Select Distinct [Part] From [ZusBauPart] Where ([AssembDokuBez] = 'FA-1220-330' And [AssembRevBez] = '5')"},
        {"SELECT DISTINCT Kennung FROM Adresstabelle'", "Select Distinct [Kennung] From [Adresstabelle]"},
        {"\tselect\r\ncount ( * )  from PartTabelle ; ", "Select Count(*) From [PartTabelle]"},
        {"SELECT Ini.Feld1, [Größe in mm] FROM ini ORDER BY ini.Feld1 ASC",
         "Select [Feld1], [Größe in mm] From [ini] Order By [Feld1]"},
        {"INSERT INTO Ini (Feld1, Feld2, Feld3) VALUES ('Meier', Null, -1.5)",
         "Insert Into [Ini] ([Feld1], [Feld2], [Feld3]) Values ('Meier', Null, -1.5)"},
        {"UPDATE Ini SET Feld4 = '1', Feld5 = null WHERE Feld1 = \"Mei\"\"er\"",
         "Update [Ini] Set [Feld4] = '1', [Feld5] = Null Where [Feld1] = 'Mei\"er'"},
        {"DELETE * FROM CheckInOut WHERE ADNutzer > 4", "Delete From [CheckInOut] Where [ADNutzer] > 4"},
        {"delete from CheckInOut", "Delete From [CheckInOut]"},
    };
    for (const TestCase& testCase : cases) {
        EXPECT_EQ(statement(testCase.text), testCase.expected) << testCase.text;
        EXPECT_EQ(statement(testCase.expected), testCase.expected);
    }
}

TEST(SqlParser, BindsNotBeforeAndBeforeOr)
{
    const std::vector<TestCase> cases{
        {"a = 1 OR b = 2 AND NOT c = 3 OR d = 4", "([a] = 1 Or ([b] = 2 And Not [c] = 3) Or [d] = 4)"},
        {"(a = 1 OR b = 2) AND c = 3", "(([a] = 1 Or [b] = 2) And [c] = 3)"},
        {"Not Not a = 1", "Not Not [a] = 1"},
        {"a In ('x', 'y') And b Not In (1)", "(([a] = 'x' Or [a] = 'y') And Not [b] = 1)"},
        {"a Between 1 And 2 And b Not Between 'x' And 'y'",
         "(([a] >= 1 And [a] <= 2) And Not ([b] >= 'x' And [b] <= 'y'))"},
        {"a Is Null Or b Is Not Null", "([a] Is Null Or [b] Is Not Null)"},
        {"a<=+.5 AND b>-7 AND c<1e3 AND d<>99999999999999999999",
         "([a] <= 0.5 And [b] > -7 And [c] < 1000 And [d] <> 1e+20)"},
        {"Andreas = 1 AND Orden = 2", "([Andreas] = 1 And [Orden] = 2)"},
        {" ( Status >= 1  AND Status <= 3) AND Projekt Like 'A*'",
         "(([Status] >= 1 And [Status] <= 3) And [Projekt] Like 'A*')"},
        {" \n", "kein Filter"},
    };
    for (const TestCase& testCase : cases)
        EXPECT_EQ(filter(testCase.text), testCase.expected) << testCase.text;
}

// Values are pasted into statements without doubling their apostrophes.
TEST(SqlParser, KeepsApostrophesThatBelongToTheValue)
{
    const std::vector<std::string> values{
        "Müller's",
        "D'Angelo GmbH",
        "3/4' Rohr",
        "Rohr 3/4'",
        "'Nabe'",
        "d'",
        "Rohr (3/4') lang",
        "Rohr (3/4')",
        "Müller', Ulm",
        "x'; DROP",
        "5' = 60\"",
        "Maß 5'-6'",
        "Meier' in Ulm",
        "x') OR (Status = 3",
        "x' Order GmbH",
        "a 'b' c",
        "O' Andrea",
        "x' UNION SELECT 1",
        "x'; DELETE FROM Ini; --'",
    };
    for (const std::string& value : values) {
        for (const char* behind : {"", " ORDER BY Titel", ";", " AND ( Status = 3 OR Status = 4)"}) {
            const auto read = parseStatement("SELECT * FROM PartTabelle WHERE Titel = '" + value + "'" + behind);
            const Expression* condition = std::get<Select>(read).where.get();
            if (const auto* both = std::get_if<And>(&condition->content))
                condition = both->parts.front().get();
            EXPECT_EQ(std::get<Condition>(condition->content).value, Value(value)) << behind;
        }
        const auto written = parseStatement("UPDATE Ini SET Feld4 = '" + value + "', Feld5 = '" + value +
                                            "' WHERE Feld1 = '" + value + "'");
        EXPECT_EQ(std::get<Update>(written).values.at(0).value, Value(value));
        EXPECT_EQ(std::get<Update>(written).values.at(1).value, Value(value));
        const auto inserted = parseStatement("INSERT INTO Ini (a, b) VALUES ('" + value + "', '" + value + "')");
        EXPECT_EQ(std::get<Insert>(inserted).values.at(0).value, Value(value));
        EXPECT_EQ(std::get<Insert>(inserted).values.at(1).value, Value(value));
    }
}

TEST(SqlParser, ReadsDoubledApostrophesAsOneAndTwoAsTheEmptyText)
{
    const std::vector<TestCase> cases{
        {"Titel Like '%''%'", "[Titel] Like '%''%'"},
        {"Titel Like '' AND Name NOT LIKE ' '", "([Titel] Like '' And [Name] Not Like ' ')"},
        {"(Titel Like '')", "[Titel] Like ''"},
        {"Titel = ''''", "[Titel] = ''''"},
        {"Titel = ''' AND Status = 3", "([Titel] = '''' And [Status] = 3)"},
        {"Titel = 'a'' AND Status = 3'", "[Titel] = 'a'' AND Status = 3'"},
        {"Titel = 'a'' AND Autor = ''b'", "[Titel] = 'a'' AND Autor = ''b'"},
        {"Titel = 'a'' AND Autor = 'b'", "([Titel] = 'a''' And [Autor] = 'b')"},
        {"Titel In ('a'',', 'b')", "([Titel] = 'a'',' Or [Titel] = 'b')"},
    };
    for (const TestCase& testCase : cases) {
        EXPECT_EQ(filter(testCase.text), testCase.expected) << testCase.text;
        EXPECT_EQ(filter(testCase.expected), testCase.expected);
    }
}

TEST(SqlParser, RefusesWhatIsNotExactlyOneStatement)
{
    const std::vector<std::string> statements{
        "",
        ";",
        "SELECT",
        "SELECT * FROM",
        "SELECT * FROM Ini; DELETE FROM Ini",
        "SELECT * FROM Ini DELETE FROM Ini",
        "SELECT * FROM Ini;;",
        "SELECT * FROM Ini -- Rest",
        "SELECT * FROM Ini WHERE",
        "SELECT * FROM Ini WHERE ()",
        "SELECT * FROM Ini WHERE Feld1 = 'x' AND ()",
        "SELECT * FROM Ini WHERE Feld1 = 'x' AND () AND Feld2 = 'y'",
        "SELECT * FROM Ini WHERE  AND ( Status = 3)",
        "SELECT * FROM Ini WHERE Feld1 = 'x' AND ",
        "SELECT * FROM Ini WHERE (Feld1 = 'x'",
        "SELECT * FROM Ini WHERE Feld1 = 'x' OR 'a' = 'a'",
        "SELECT * FROM Ini WHERE Feld1 = 'a' AND Status = 3'",
        "SELECT * FROM Ini WHERE Feld1 = 'x",
        "SELECT * FROM Ini WHERE Feld1 = Feld2",
        "SELECT * FROM Ini WHERE Feld1 = Null",
        "SELECT * FROM Ini WHERE Feld1 Like 5",
        "SELECT * FROM Ini WHERE Feld1 = 5abc",
        "SELECT * FROM Ini WHERE Feld1 = 1.2.3",
        "SELECT * FROM Ini WHERE Feld1 = --1",
        "SELECT * FROM Ini WHERE Feld1 = 1e999",
        "SELECT * FROM Ini WHERE Feld1 = -inf",
        "SELECT * FROM Ini, CheckInOut",
        "SELECT Feld1 FROM Ini ORDER Feld1",
        "SELECT [] FROM Ini",
        "SELECT Count(*) FROM",
        "INSERT INTO Ini (Feld1, Feld2) VALUES ('x')",
        "INSERT INTO Ini (Feld1) VALUES ('x', 'y')",
        "UPDATE Ini SET Feld1 WHERE Feld2 = 'x'",
        "DROP TABLE Ini",
    };
    for (const std::string& text : statements)
        EXPECT_EQ(statement(text).substr(0, 12), SYNTAX) << text;
    EXPECT_EQ(statement("SELECT CheckInOut.Feld1 FROM Ini"),
              "Die Tabelle 'CheckInOut' kommt in der Anweisung nicht vor.");
    EXPECT_EQ(statement("SELECT * FROM Ini WHERE Feld1 == 'Ä'"), "Syntaxfehler im Ausdruck bei \"= 'Ä'\".");
    EXPECT_EQ(filter("a = 1 ORDER BY a"), "Syntaxfehler im Ausdruck bei \"ORDER BY a\".");
    try {
        parseCondition("a =");
        FAIL();
    } catch (const RuntimeError& fault) {
        EXPECT_EQ(fault.number(), -2147217900);
    }
}

TEST(SqlParser, ReadsTheMonthFirstInStatementsAndTheDayFirstInFilters)
{
    const std::vector<std::pair<std::string, TestCase>> cases{
        {"#04/03/26 00:00:00#", {"#04/03/2026 00:00:00#", "#03/04/2026 00:00:00#"}},
        {"#15/11/26 23:59:59#", {"#11/15/2026 23:59:59#", "#11/15/2026 23:59:59#"}},
        {"#11/15/26#", {"#11/15/2026 00:00:00#", "#11/15/2026 00:00:00#"}},
        {"# 1-2-1998 7:30 #", {"#01/02/1998 07:30:00#", "#02/01/1998 07:30:00#"}},
        {"#01.02.30#", {"#01/02/1930 00:00:00#", "#02/01/1930 00:00:00#"}},
        {"#2026-11-15 08:00:00#", {"#11/15/2026 08:00:00#", "#11/15/2026 08:00:00#"}},
        {"#02/30/26#", {SYNTAX, SYNTAX}},
        {"#15/15/26#", {SYNTAX, SYNTAX}},
        {"#11/15/26", {SYNTAX, SYNTAX}},
        {"##", {SYNTAX, SYNTAX}},
    };
    const auto dateFrom = [](const std::string& text) {
        return text.starts_with(SYNTAX) ? SYNTAX : text.substr(text.find('#'));
    };
    for (const auto& [literal, expected] : cases) {
        EXPECT_EQ(dateFrom(statement("SELECT * FROM t WHERE d = " + literal)), expected.text) << literal;
        EXPECT_EQ(dateFrom(filter("d = " + literal)), expected.expected) << literal;
    }
}

TEST(SqlParser, LimitsTheDepthOfBrackets)
{
    const auto nested = [](std::string_view toUnfold, std::size_t depth, std::string_view to) {
        std::string text;
        for (std::size_t i = 0; i < depth; ++i)
            text += toUnfold;
        text += "a = 1";
        for (std::size_t i = 0; i < depth; ++i)
            text += to;
        return filter(text);
    };
    EXPECT_EQ(nested("(", 150, ")"), "[a] = 1");
    EXPECT_EQ(nested("(", 100000, ")").substr(0, 12), SYNTAX);
    EXPECT_EQ(nested("NOT ", 100000, "").substr(0, 12), SYNTAX);
}
