#pragma once

#include "database/engine.h"
#include "database/odbc_drivers.h"
#include "database/open_engine.h"
#include "database/postgres_cluster.h"
#include "database/sql/parser.h"
#include "fakes/temp_folder.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::test {

// One suite for every engine: a fresh, empty database each time.
class EngineTest : public ::testing::TestWithParam<std::string_view>
{
protected:
    void SetUp() override
    {
        if (isPostgres()) {
            PostgresCluster* cluster = PostgresCluster::find();
            if (!cluster)
                GTEST_SKIP() << "no PostgreSQL server is installed here";
            address_ = cluster->newDatabase();
        }
        if (isOdbc()) {
            if (const std::string missing = prepareOdbc(isPostgres(), address_); !missing.empty())
                GTEST_SKIP() << missing;
        }
        engine_ = open();
    }

    void TearDown() override
    {
        engine_.reset();
        if (!address_.empty())
            PostgresCluster::find()->release(address_);
    }

    bool isPostgres() const { return GetParam().ends_with("PostgreSQL"); }
    bool isOdbc() const { return GetParam().starts_with("Odbc"); }

    // Another connection to the same database.
    std::shared_ptr<Engine> open() const
    {
        if (isOdbc())
            return openOdbc(isPostgres() ? odbcText(address_) : odbcText(folder_.path() / "test.qv"));
        return isPostgres() ? openPostgres(address_) : openSqlite(folder_.path() / "test.qv", true);
    }

    static sql::Select select(std::string_view text) { return std::get<sql::Select>(sql::parseStatement(text)); }

    // The rows of a SELECT, columns divided by "|", Null as "Null".
    std::vector<std::string> read(std::string_view text) const { return rows(*engine_->read(select(text), {})); }

    std::int64_t execute(std::string_view text) { return engine_->execute(sql::parseStatement(text)); }

    static std::vector<std::string> rows(RowReader& reader)
    {
        std::vector<std::string> rows;
        while (reader.next()) {
            std::string& row = rows.emplace_back();
            for (std::size_t i = 0; i < reader.columns().size(); ++i)
                row += (i ? "|" : "") + (reader.isNull(i) ? "Null" : asText(reader.value(i)));
        }
        return rows;
    }

    // A table "Tafel" with these columns; each row's values in their order.
    void fill(std::vector<ColumnInfo> columns, const std::vector<std::vector<Value>>& rows,
              std::vector<std::vector<IndexColumn>> indexes = {})
    {
        const TableSchema panel{"Tafel", std::move(columns), std::move(indexes)};
        engine_->createTable(panel);
        const auto writer = engine_->bulkWriter("Tafel", panel.columns);
        for (const auto& row : rows)
            writer->row(row);
        writer->end();
        engine_->createIndexes(panel);
    }

    // One text column "Wort".
    void fillWords(const std::vector<Value>& words)
    {
        std::vector<std::vector<Value>> rows;
        for (const Value& word : words)
            rows.push_back({word});
        fill({{"Wort", FieldType::Text}}, rows, {{{"Wort", false}}});
    }

    TempFolder folder_;
    std::string address_;
    std::shared_ptr<Engine> engine_;
};

inline const auto ownEngines = ::testing::Values("SQLite", "PostgreSQL");
// What the ODBC engine does otherwise (odbc_drivers.h names it) is skipped or told apart in the test concerned.
inline const auto allEngines = ::testing::Values("SQLite", "PostgreSQL", "OdbcSQLite", "OdbcPostgreSQL");
inline constexpr auto engineName = [](const auto& info) { return std::string(info.param); };

} // namespace quelvarn::test
