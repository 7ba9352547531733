#include "base/runtime_error.h"
#include "database/sql/access_dialect.h"
#include "database/sql/conditions.h"
#include "database/sql/engine_dialects.h"
#include "database/sql/parser.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace quelvarn;
using namespace quelvarn::sql;

namespace {

const TableSchema PARTS{"PartTabelle",
                        {{"DokuBez", FieldType::Text},
                         {"Größe", FieldType::Text},
                         {"Status", FieldType::Integer},
                         {"Hauptwert_a", FieldType::FloatingPoint},
                         {"Erstellt", FieldType::Date}},
                        {}};

// The parameters as they would be read, divided by "|".
std::string parameter(const Rendered& rendered)
{
    std::string text;
    for (const Value& value : rendered.parameter) {
        text += text.empty() ? "" : "|";
        text += std::holds_alternative<std::string>(value) ? "'" + asText(value) + "'" : asText(value);
    }
    return text;
}

Rendered rendered(const Dialect& dialect, std::string_view sql, std::size_t limit = 0)
{
    const Statement statement = parseStatement(sql);
    if (const auto* select = std::get_if<Select>(&statement))
        return dialect.select(*select, PARTS, WithKey::No, limit);
    return dialect.change(statement, PARTS);
}

} // namespace

TEST(SqlRenderer, RefusesWhatTheTableDoesNotHave)
{
    const std::vector<std::pair<std::string, int>> cases{
        {"SELECT Preis FROM PartTabelle", FAULT_MISSING_FIELD},
        {"SELECT * FROM PartTabelle WHERE Preis = 1", FAULT_MISSING_FIELD},
        {"SELECT * FROM PartTabelle ORDER BY Preis", FAULT_MISSING_FIELD},
        {"SELECT DISTINCT DokuBez FROM PartTabelle ORDER BY Status", FAULT_MISSING_FIELD},
        {"UPDATE PartTabelle SET Preis = 1", FAULT_MISSING_FIELD},
        {"UPDATE PartTabelle SET Status = 'offen'", FAULT_DATA_TYPE},
        {"INSERT INTO PartTabelle (Erstellt) VALUES ('')", FAULT_DATA_TYPE},
    };
    for (const auto& [sql, number] : cases) {
        try {
            rendered(sqliteDialect(), sql);
            ADD_FAILURE() << sql;
        } catch (const RuntimeError& fault) {
            EXPECT_EQ(fault.number(), number) << fault.description();
        }
    }
}

TEST(SqlRenderer, AccessIsTakenAtItsWord)
{
    const std::pair<std::string, std::string> cases[] = {
        {"Select DokuBez, Status From PartTabelle Where Größe = 'ä''b' Order By DokuBez, Status Desc",
         "SELECT TOP 5 [DokuBez], [Status] FROM [PartTabelle] WHERE [Größe] = ? ORDER BY [DokuBez], [Status] DESC <- "
         "'ä'b'"},
        {"Select Distinct DokuBez From PartTabelle Where DokuBez Not Like '' And DokuBez Like 'a#%*_[a-c]?[b'",
         "SELECT DISTINCT TOP 5 [DokuBez] FROM [PartTabelle] WHERE (NOT ([DokuBez] LIKE ?) AND [DokuBez] LIKE ?) <- "
         "''|'a[#]%[*]_[a-c][?][[]b'"},
        {"Select Count(*) From PartTabelle Where Erstellt >= #03/07/06 13:59:01# And Status = '3'",
         "SELECT COUNT(*) FROM [PartTabelle] WHERE ([Erstellt] >= #03/07/2006 13:59:01# AND [Status] = 3) <- "},
        {"Update PartTabelle Set Hauptwert_a = 1.5, Größe = Null Where Status Is Null",
         "UPDATE [PartTabelle] SET [Hauptwert_a] = 1.5, [Größe] = Null WHERE [Status] IS NULL <- "},
        {"Insert Into PartTabelle (DokuBez, Status) Values ('a', 2)",
         "INSERT INTO [PartTabelle] ([DokuBez], [Status]) VALUES (?, 2) <- 'a'"},
    };
    for (const auto& [statement, expected] : cases) {
        const Rendered finish = rendered(accessDialect(), statement, 5);
        EXPECT_EQ(finish.text + " <- " + parameter(finish), expected);
    }
    const Select filtered =
        Query("PartTabelle").columns({"DokuBez"}).where(like("DokuBez", "a#%*_[a]?]", Wildcards::Star));
    EXPECT_EQ(parameter(accessDialect().select(filtered, PARTS, WithKey::No)), "'a[#][%]%[_][[]a][?]]'");
    const Assignment picture[] = {{"DokuBez", std::string("a")}, {"Größe", {}}, {"Status", std::int64_t{2}}};
    const Rendered remove = accessDialect().removeRow(PARTS, picture);
    EXPECT_EQ(remove.text,
              "DELETE FROM [PartTabelle] WHERE StrComp([DokuBez], ?, 0) = 0 AND [Größe] IS NULL AND [Status] = 2");
}
