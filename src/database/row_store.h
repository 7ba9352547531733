#pragma once

#include "database/column_loader.h"
#include "database/engine.h"

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quelvarn {

// How a recordset is opened.
struct Opening
{
    bool writable = false;
    bool readWhole = false; // All columns at once, however many rows there are.
    std::size_t small = 0;  // So many rows are read whole.
};

// The rows of a recordset: their keys, the columns in memory, and the way to the others.
class RowStore
{
public:
    // Of a recordset in memory; every column is there from the start.
    void appendField(ColumnInfo field);
    void clear();
    void open(std::shared_ptr<Engine> engine, sql::Select query, const Opening& opening);

    // Rows of one table by their keys.
    void openRows(std::shared_ptr<Engine> engine, std::string_view table, std::vector<RowKey> key, std::size_t small);

    const std::vector<ColumnInfo>& fields() const { return fields_; }
    std::optional<std::size_t> findField(std::string_view name) const; // In any case.
    // Throws RuntimeError 3265 when there is none.
    std::size_t fieldOf(std::string_view name) const;

    std::size_t count() const { return count_; }
    bool loaded(std::size_t field) const { return columns_[field] != nullptr; }
    const Column& column(std::size_t field) const { return *columns_[field]; }
    // Reads whole columns, all in one pass. False when the progress was given up; then none is there.
    bool load(std::span<const std::size_t> fields, const Progress& progress);
    // Cells of columns that are not in memory: for each row the fields in their order, Null for a row that is gone.
    std::vector<Value> readCells(std::span<const RowNumber> rows, std::span<const std::size_t> fields) const;

    // nullptr for a recordset in memory.
    Engine* engine() const { return engine_.get(); }
    const std::string& table() const { return query_.table; }
    bool hasKey() const { return hasKey_; }
    RowKey key(RowNumber row) const { return key_[row]; }
    // Rows with smaller numbers were stored earlier.
    RowKey sequence(RowNumber row) const { return hasKey_ ? key_[row] : row; }
    void setKey(RowNumber row, RowKey key) { key_[row] = key; }

    // What the recordset itself changed. These touch only memory.
    RowNumber appendRow();
    void set(RowNumber row, std::size_t field, const Value& value);

    std::size_t memory() const;

private:
    bool readWhole(std::size_t atMost, DuplicateSearch* duplicates);
    void readKey();
    void rearrange();
    std::unique_ptr<RowReader> readUnsorted(std::span<const std::size_t> fields);
    void setOwn(ColumnList& columns, std::span<const std::size_t> fields);
    std::vector<std::string> names(std::span<const std::size_t> fields) const;

    std::shared_ptr<Engine> engine_;
    sql::Select query_;
    std::vector<ColumnInfo> fields_;
    ColumnList columns_; // nullptr: not in memory
    std::vector<RowKey> key_;
    bool hasKey_ = false;
    std::size_t count_ = 0;
    std::vector<RowNumber> own_; // Rows changed or added here.
};

} // namespace quelvarn
