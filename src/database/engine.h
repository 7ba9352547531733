#pragma once

#include "database/row_reader.h"
#include "database/schema.h"
#include "database/sql/ast.h"
#include "database/watched_file.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class Patience;

struct EngineCapabilities
{
    bool rowKey = true;            // Each row has a hidden key.
    bool loadsColumnsLater = true; // Columns are read later by row key for little; else a recordset is read whole.
    bool distinctBlind = true;     // DISTINCT is blind to case and trailing blanks by itself.
    bool transactions = true;
};

enum class WithKey { No, Yes };

// What an engine's own check of the database says.
struct DamageReport
{
    bool checked = false;              // Not every engine, and not every server, has one.
    std::vector<std::string> findings; // In the engine's own words.
};

// What a database must be able to do. It takes trees, never text of its own dialect, and hides its driver.
// Every call throws RuntimeError with the driver's text on a fault.
class Engine
{
public:
    virtual ~Engine() = default;
    virtual std::string_view name() const = 0;
    virtual EngineCapabilities capabilities() const = 0;
    // Asked while the engine waits for somebody else; null: it waits as long as it finds right. Outlives the engine.
    virtual void setPatience(Patience*) {}
    // What became of the file that was opened; the same for an engine without one.
    virtual FileState fileState() const { return FileState::Same; }
    virtual void checkFile() const {} // Throws DatabaseFault unless it is still the same.

    virtual std::vector<std::string> tables() = 0;
    // Columns as they stand in the database; nothing when there is no such table. Names in any case.
    virtual std::optional<TableSchema> findTable(std::string_view name) = 0;

    // `limit` rows at most when above 0. Row keys cannot be had with DISTINCT.
    virtual std::unique_ptr<RowReader> read(const sql::Select& select, WithKey key, std::size_t limit = 0) = 0;
    // These columns of these rows, in any order, keys included; rows that are gone are left out.
    virtual std::unique_ptr<RowReader> readRows(std::string_view table, std::span<const std::string> columns,
                                                std::span<const RowKey> key) = 0;
    // How the engine would run it, in its own words: tells whether an index serves it.
    virtual std::string executionPlan(const sql::Select& select) = 0;
    // Rows affected.
    virtual std::int64_t execute(const sql::Statement& statement) = 0;

    virtual RowKey insert(std::string_view table, std::span<const sql::Assignment> values) = 0;
    // False when the row is gone.
    virtual bool update(std::string_view table, RowKey row, std::span<const sql::Assignment> values) = 0;
    virtual bool remove(std::string_view table, RowKey row) = 0;

    virtual void createTable(const TableSchema& table) = 0;
    virtual void createIndexes(const TableSchema& table) = 0; // Those that are there already stay.
    // Those of the table's indexes that the database lacks.
    virtual std::vector<std::vector<IndexColumn>> missingIndexes(const TableSchema& table) = 0;
    // With its rows and indexes. Nothing happens when there is no such table.
    virtual void removeTable(std::string_view name) = 0;
    // Looks for damage in the stored pages and indexes, which takes as long as reading all of them. Whoever writes
    // may have to wait meanwhile. After `limit` findings it ends.
    virtual DamageReport findDamage(std::size_t /*limit*/) { return {}; }
    // Bulk insert: values in the order of the columns.
    class BulkWriter
    {
    public:
        virtual ~BulkWriter() = default;
        virtual void row(std::span<const Value> values) = 0;
        virtual void end() = 0;
    };
    virtual std::unique_ptr<BulkWriter> bulkWriter(std::string_view table, std::span<const ColumnInfo> columns) = 0;

    // In a transaction, by one who looks before he writes: until its end others who call this wait here, and then see
    // what was written. Nothing where beginning a transaction does that already, or where the engine has no means.
    virtual void lockForWriting(std::string_view) {}

    virtual void begin() = 0;
    virtual void commit() = 0;
    virtual void rollBack() = 0;
};

} // namespace quelvarn
