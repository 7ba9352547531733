#pragma once

#include "database/catalog.h"
#include "database/engine.h"

namespace quelvarn::sql {
struct Rendered;
}

namespace quelvarn::postgresql {

class Handle;

// The register on a PostgreSQL server.
class PostgresEngine final : public Engine
{
public:
    // `patience` may be null, and outlives the engine.
    PostgresEngine(std::string_view address, Patience* patience);
    ~PostgresEngine() override;

    std::string_view name() const override { return "PostgreSQL"; }
    EngineCapabilities capabilities() const override { return {}; }
    void setPatience(Patience* patience) override;

    std::vector<std::string> tables() override;
    std::optional<TableSchema> findTable(std::string_view name) override;

    std::unique_ptr<RowReader> read(const sql::Select& select, WithKey key, std::size_t limit) override;
    std::unique_ptr<RowReader> readRows(std::string_view table, std::span<const std::string> columns,
                                        std::span<const RowKey> key) override;
    std::string executionPlan(const sql::Select& select) override;
    std::int64_t execute(const sql::Statement& statement) override;

    RowKey insert(std::string_view table, std::span<const sql::Assignment> values) override;
    bool update(std::string_view table, RowKey row, std::span<const sql::Assignment> values) override;
    bool remove(std::string_view table, RowKey row) override;

    void createTable(const TableSchema& table) override;
    void createIndexes(const TableSchema& table) override;
    std::vector<std::vector<IndexColumn>> missingIndexes(const TableSchema& table) override;
    void removeTable(std::string_view name) override;
    DamageReport findDamage(std::size_t limit) override;
    std::unique_ptr<Engine::BulkWriter> bulkWriter(std::string_view table,
                                                   std::span<const ColumnInfo> columns) override;

    void lockForWriting(std::string_view table) override;
    void begin() override;
    void commit() override;
    void rollBack() override;

    // Tells the planner of many new rows or a new index, without which it would not read lists from the index alone.
    // Nothing inside a transaction; the server then does it by itself later.
    void refreshAll(const std::string& table);

private:
    std::optional<TableSchema> readSchema(std::string_view name);
    std::unique_ptr<RowReader> reader(const sql::Rendered& rendered, WithKey key);
    std::unique_ptr<RowReader> readDistinct(const sql::Select& select, const sql::Rendered& rendered,
                                            std::size_t limit);
    std::int64_t updateRows(const sql::Rendered& rendered);
    void createFunctions();

    std::shared_ptr<Handle> handle_;
    TableCatalog catalog_;
    bool functionsCreated_ = false;
};

} // namespace quelvarn::postgresql
