#pragma once

#include "database/catalog.h"
#include "database/engine.h"
#include "database/nested_transaction.h"

#include <filesystem>

namespace quelvarn::sql {
struct Rendered;
}

namespace quelvarn::sqlite {

class Handle;
class Statement;

// The register in one SQLite file, which may be shared on a network drive.
// A file that was away is opened again by the next statement: what only reads is repeated then, a change never.
class SqliteEngine final : public Engine
{
public:
    SqliteEngine(const std::filesystem::path& path, bool create, Patience* patience);

    std::string_view name() const override { return "SQLite"; }
    EngineCapabilities capabilities() const override { return {}; }
    void setPatience(Patience* patience) override;
    FileState fileState() const override;
    void checkFile() const override;

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

    void begin() override;
    void commit() override;
    void rollBack() override;

private:
    std::optional<TableSchema> readSchema(std::string_view name);
    // Runs what only reads, once more on a file that is back.
    template <class Read> auto repeatable(Read read);
    void makeReady();
    void openAgain();
    // Before a change that stands alone, or the first of several.
    void beforeChange();
    Statement prepared(const sql::Rendered& rendered);
    std::unique_ptr<RowReader> reader(sql::Rendered rendered, WithKey key);
    std::int64_t updateRows(const sql::Rendered& rendered);

    Patience* patience_;
    std::shared_ptr<Handle> handle_;
    TableCatalog catalog_;
    // Asks for the write lock at once: two writers wait for one another instead of failing halfway.
    TransactionSequence transaction_{"BEGIN IMMEDIATE"};
};

} // namespace quelvarn::sqlite
