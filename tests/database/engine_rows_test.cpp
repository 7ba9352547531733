#include "base/collation.h"
#include "base/runtime_error.h"
#include "database/engine_fixture.h"
#include "database/new_database.h"

#include <gmock/gmock.h>
#include <limits>
#include <set>

namespace quelvarn::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class EngineRows : public EngineTest
{
protected:
    void fillParts() { fill({{"Name", FieldType::Text}, {"Anzahl", FieldType::Integer}}, {{"Welle", 1}, {"Nabe", 2}}); }

    // The driver of SQLite rounds doubles to 15 digits.
    static bool isRound(std::size_t column) { return GetParam() == "OdbcSQLite" && column == 2; }

    RowKey insert(const char* name)
    {
        const sql::Assignment values[] = {{"name", std::string(name)}, {"ANZAHL", std::int64_t{7}}};
        return engine_->insert("tafel", values);
    }
};
INSTANTIATE_TEST_SUITE_P(, EngineRows, allEngines, engineName);

TEST_P(EngineRows, EveryValueComesBackAsItWentIn)
{
    const auto day = [](int year, int month, int t, int hour) { return DateTime::from({year, month, t, hour, 59, 1}); };
    const std::vector<std::vector<Value>> rows{
        {"O'Neill \"GmbH\"", std::int64_t{0}, 0.1, day(2024, 2, 29, 13)},
        {"C:\\Teile\\n\t50%\n;--", std::numeric_limits<std::int64_t>::max(), -1e-300, day(1899, 12, 29, 6)},
        {"Größe 😀 Ł {x} $1 ?1", std::int64_t{-5}, 1.7976931348623157e308, day(100, 1, 1, 0)},
        {std::string(70000, 'x') + "ß", std::int64_t{2147483648}, 1.0 / 3, day(9999, 12, 31, 23)},
        {"", Value{}, Value{}, Value{}},
        {Value{}, std::numeric_limits<std::int64_t>::min(), 0.0, DateTime{}},
    };
    const std::vector<ColumnInfo> columns{{"Wort", FieldType::Text},
                                          {"Ganz", FieldType::Integer},
                                          {"Zahl", FieldType::FloatingPoint},
                                          {"Tag", FieldType::Date}};
    fill(columns, rows);
    for (const auto& row : rows) { // The same again, row by row.
        std::vector<sql::Assignment> values;
        for (std::size_t i = 0; i < row.size(); ++i)
            values.push_back({columns[i].name, row[i]});
        engine_->insert("Tafel", values);
    }

    const auto reader = engine_->read(select("Select * From Tafel"), WithKey::Yes);
    EXPECT_EQ(reader->columns(), columns);
    std::set<RowKey> key;
    for (std::size_t number = 0; number < 2 * rows.size(); ++number) {
        const auto& row = rows[number % rows.size()];
        ASSERT_TRUE(reader->next());
        EXPECT_TRUE(key.insert(reader->key()).second);
        EXPECT_TRUE(isOdbc() || reader->key() == static_cast<RowKey>(number + 1));
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (isRound(i))
                continue;
            EXPECT_EQ(reader->value(i), row[i]) << number << ", " << i;
            EXPECT_EQ(reader->isNull(i), isNull(row[i]));
        }
        EXPECT_EQ(reader->text(0), asText(row[0]));
        EXPECT_EQ(reader->integer(1), asInteger(row[1]));
        EXPECT_TRUE(isRound(2) || reader->floatingPoint(2) == asNumber(row[2]));
        EXPECT_EQ(reader->date(3), asDate(row[3]));
    }
    EXPECT_FALSE(reader->next());
    EXPECT_FALSE(reader->next());
}

TEST_P(EngineRows, RowsAreWrittenByTheirKeysAndAKeyIsNeverGivenTwice)
{
    fillParts();
    const RowKey bolt = insert("Bolzen");
    const sql::Assignment fresh[] = {{"Name", std::string("Stift")}};
    EXPECT_TRUE(engine_->update("Tafel", bolt, fresh));
    EXPECT_THAT(read("Select * From Tafel Where Anzahl = 7"), ElementsAre("Stift|7"));

    EXPECT_TRUE(engine_->remove("Tafel", bolt));
    EXPECT_FALSE(engine_->remove("Tafel", bolt));
    EXPECT_FALSE(engine_->update("Tafel", bolt, fresh));
    const RowKey key = insert("Keil");
    EXPECT_NE(key, bolt);

    const auto all = engine_->read(select("Select Name From Tafel Order By Name Desc"), WithKey::Yes);
    ASSERT_TRUE(all->next());
    const RowKey shaft = all->key();
    EXPECT_TRUE(isOdbc() || shaft == 1);
    const std::string columns[] = {"name"};
    const RowKey sought[] = {key, bolt, shaft};
    const auto reader = engine_->readRows("tafel", columns, sought);
    std::vector<std::string> found;
    while (reader->next())
        found.push_back(std::to_string(reader->key()) + std::string(reader->text(0)));
    EXPECT_THAT(found, ::testing::UnorderedElementsAre(std::to_string(shaft) + "Welle", std::to_string(key) + "Keil"));
    EXPECT_FALSE(engine_->readRows("Tafel", columns, {})->next());
}

TEST_P(EngineRows, StatementsTellHowManyRowsTheyTouched)
{
    fillParts();
    EXPECT_EQ(execute("Insert Into Tafel (Name, Anzahl) Values ('Welle ', 3)"), 1);
    EXPECT_EQ(execute("Update Tafel Set Anzahl = 9, Name = 'O''Neill' Where Name = 'WELLE'"), 2);
    EXPECT_EQ(execute("Delete From Tafel Where Anzahl = 4"), 0);
    EXPECT_THAT(read("Select Name From Tafel Where Anzahl = 9"), ElementsAre("O'Neill", "O'Neill"));
    EXPECT_EQ(execute("Delete From Tafel"), 3);
}

TEST_P(EngineRows, ALimitCutsTheResult)
{
    fillParts();
    const auto reader = engine_->read(select("Select Name From Tafel Order By Name"), WithKey::Yes, 1);
    EXPECT_THAT(rows(*reader), ElementsAre("Nabe"));
    EXPECT_THAT(rows(*engine_->read(select("Select Distinct Name From Tafel Order By Name"), {}, 1)),
                ElementsAre("Nabe"));
}

TEST_P(EngineRows, ATransactionHoldsAllOrNothing)
{
    fillParts();
    const auto second = open();
    const auto countThere = [&] { return rows(*second->read(select("Select Count(*) From Tafel"), {})).front(); };

    engine_->begin();
    insert("Keil");
    EXPECT_EQ(countThere(), "2");
    engine_->rollBack();
    EXPECT_EQ(countThere(), "2");

    engine_->begin();
    insert("Keil");
    engine_->begin(); // One inside another can be taken back by itself.
    insert("Stift");
    engine_->rollBack();
    engine_->begin();
    insert("Bolzen");
    engine_->commit();
    engine_->commit();
    EXPECT_THAT(rows(*second->read(select("Select Name From Tafel Order By Name"), {})),
                ElementsAre("Bolzen", "Keil", "Nabe", "Welle"));

    engine_->bulkWriter("Tafel", engine_->findTable("Tafel")->columns)->row(std::vector<Value>{"x", 1});
    EXPECT_THAT(read("Select Count(*) From Tafel"), ElementsAre("4")) << "an unfinished bulk insert leaves nothing";
}

TEST_P(EngineRows, SeveralReadersAndWritesMayOverlap)
{
    fillParts();
    const auto first = engine_->read(select("Select Name From Tafel Order By Name"), WithKey::Yes);
    const auto second = engine_->read(select("Select Name From Tafel Order By Name"), WithKey::Yes);
    ASSERT_TRUE(first->next());
    ASSERT_TRUE(second->next());
    EXPECT_EQ(first->text(0), "Nabe");
    engine_->remove("Tafel", first->key());
    ASSERT_TRUE(first->next());
    EXPECT_EQ(first->text(0), "Welle");
    EXPECT_FALSE(first->next());
}

TEST_P(EngineRows, TablesAreFoundInAnyCaseWithTheirColumnsAsStored)
{
    createRegister(*engine_);
    for (const TableSchema& table : registerSchema())
        EXPECT_EQ(engine_->findTable(toUpper(table.name))->columns, table.columns) << table.name;
    EXPECT_EQ(engine_->tables().size(), registerSchema().size());
    EXPECT_EQ(engine_->findTable("DraftTabelle")->columns.back().name, "F_05_leer");
    EXPECT_EQ(engine_->findTable("Gibtsnicht"), std::nullopt);

    TableSchema ini = *findTable("Ini");
    EXPECT_TRUE(engine_->missingIndexes(ini).empty());
    ini.indexes.push_back({{"Feld5"}});
    EXPECT_EQ(engine_->missingIndexes(ini).size(), isOdbc() ? 0U : 1U);
    engine_->removeTable("INI");
    engine_->removeTable("Ini");
    EXPECT_EQ(engine_->findTable("Ini"), std::nullopt);
}

TEST_P(EngineRows, FaultsCarryNumberSourceAndText)
{
    fillParts();
    const auto fault = [&](std::string_view text) {
        try {
            read(text);
        } catch (const RuntimeError& caught) {
            return std::to_string(caught.number()) + " " + caught.source() + ": " + caught.description();
        }
        return std::string("no fault");
    };
    EXPECT_EQ(fault("Select * From Fehlt"),
              "-2147217865 " + std::string(GetParam()) + ": Die Tabelle 'Fehlt' wurde nicht gefunden.");
    EXPECT_THAT(fault("Select Farbe From Tafel"), HasSubstr("-2147217904"));
    EXPECT_THAT(fault("Select Name From Tafel Where Farbe = 1"), HasSubstr("-2147217904"));
    EXPECT_THROW(engine_->createTable({"Tafel", {{"x"}}, {}}), RuntimeError);
    EXPECT_THAT(read("Select Name From Tafel Where Anzahl = 2"), ElementsAre("Nabe")) << "the connection still works";
}

} // namespace
} // namespace quelvarn::test
