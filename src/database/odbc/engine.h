#pragma once

#include "database/catalog.h"
#include "database/engine.h"
#include "database/odbc/row_book.h"
#include "database/odbc/statement.h"

#include <memory>
#include <unordered_map>

namespace quelvarn::sql {
struct Rendered;
}

namespace quelvarn::odbc {

struct OdbcKind;

// The register behind an ODBC driver: the Access file that the office shares with other programs, in place. Its tables
// have no row key, so the engine knows a row by all it holds (RowBook).
class OdbcEngine final : public Engine
{
public:
    // `file`: the one that the connection text names, where it is known.
    explicit OdbcEngine(std::string_view connectionText, std::optional<WatchedFile> file = {});

    std::string_view name() const override;
    EngineCapabilities capabilities() const override;
    FileState fileState() const override;
    void checkFile() const override;

    std::vector<std::string> tables() override;
    std::optional<TableSchema> findTable(std::string_view name) override;

    std::unique_ptr<RowReader> read(const sql::Select& select, WithKey key, std::size_t limit) override;
    std::unique_ptr<RowReader> readRows(std::string_view table, std::span<const std::string> columns,
                                        std::span<const RowKey> key) override;
    // The statement as it is sent: a driver tells no plan.
    std::string executionPlan(const sql::Select& select) override;
    std::int64_t execute(const sql::Statement& statement) override;

    RowKey insert(std::string_view table, std::span<const sql::Assignment> values) override;
    // Throws RuntimeError, and nothing is changed, when another row is equal throughout.
    bool update(std::string_view table, RowKey row, std::span<const sql::Assignment> values) override;
    bool remove(std::string_view table, RowKey row) override;

    // Tables and indexes of an Access file belong to the program that fills it: these three throw there.
    void createTable(const TableSchema& table) override;
    void createIndexes(const TableSchema& table) override;
    void removeTable(std::string_view name) override;
    std::vector<std::vector<IndexColumn>> missingIndexes(const TableSchema& table) override; // Never any.
    std::unique_ptr<Engine::BulkWriter> bulkWriter(std::string_view table,
                                                   std::span<const ColumnInfo> columns) override;

    // Without savepoints an inner transaction that is taken back takes the outer one with it.
    void lockForWriting(std::string_view table) override;
    void begin() override;
    void commit() override;
    void rollBack() override;

private:
    std::optional<TableSchema> readSchema(std::string_view name);
    std::string savedName(std::string_view name);
    StatementHandle start(const sql::Rendered& rendered);
    std::shared_ptr<RowBook> bookOf(const TableSchema& table);
    std::vector<std::vector<Value>> findRows(const TableSchema& table, std::span<const sql::Assignment> picture);
    std::unique_ptr<RowReader> readSingle(const TableSchema& table, std::vector<ColumnInfo> columns,
                                          std::span<const RowKey> key);
    bool writeOne(const TableSchema& table, std::span<const sql::Assignment> picture, const sql::Rendered& rendered);
    void rememberState(const std::shared_ptr<RowBook>& book, RowKey key);
    void checkWritingLayout() const;

    std::optional<WatchedFile> file_;
    std::shared_ptr<ConnectionHandle> connection_;
    const OdbcKind* kind_;
    TableCatalog catalog_;
    std::unordered_map<std::string, std::shared_ptr<RowBook>> books_; // By the stored name of the table.
    // What rows held before they were changed in the open transaction; each inner one has its mark.
    struct Before
    {
        std::shared_ptr<RowBook> book;
        RowKey key;
        std::string picture;
    };
    std::vector<Before> before_;
    std::vector<std::size_t> marks_;
    bool spoiled_ = false; // An inner one was taken back without a savepoint.
};

} // namespace quelvarn::odbc
