#pragma once

#include "database/odbc/row_book.h"
#include "database/odbc/statement.h"

#include <optional>

namespace quelvarn::odbc {

// A reader whose current row lies in memory.
class RowCarrier : public RowReader
{
public:
    explicit RowCarrier(std::vector<ColumnInfo> columns) : columns_(std::move(columns)) {}

    const std::vector<ColumnInfo>& columns() const override { return columns_; }
    RowKey key() const override { return key_; }
    bool isNull(std::size_t column) const override { return quelvarn::isNull(row_[column]); }
    std::string_view text(std::size_t column) const override;
    std::int64_t integer(std::size_t column) const override { return asInteger(row_[column]); }
    double floatingPoint(std::size_t column) const override { return asNumber(row_[column]); }
    DateTime date(std::size_t column) const override { return asDate(row_[column]); }
    Value value(std::size_t column) const override { return row_[column]; }

protected:
    std::vector<Value> row_; // At least the columns of the reader.
    RowKey key_ = 0;

private:
    std::vector<ColumnInfo> columns_;
    mutable std::string text_;
};

// Which cell of a result holds which column of the table, to tell a row by all it holds.
struct KeySource
{
    std::shared_ptr<RowBook> book;
    std::vector<std::size_t> positions; // By the table's columns.
};

// The rows of a statement as the driver hands them out.
class Reader final : public RowCarrier
{
public:
    // `rest` are columns behind those of the reader. `limit` rows at most when above 0.
    Reader(StatementHandle statement, std::vector<ColumnInfo> columns, const std::vector<ColumnInfo>& rest,
           std::size_t limit, std::optional<KeySource> source);

    bool next() override;

private:
    void rememberKey();

    StatementHandle statement_;
    std::vector<FieldType> types_;
    std::size_t left_;
    std::optional<KeySource> source_;
    std::unordered_map<std::string, std::size_t> occurrences_;
    bool atEnd_ = false;
};

struct KeyRow
{
    RowKey key;
    std::vector<Value> values;
};

// Rows that were collected before.
class ListReader final : public RowCarrier
{
public:
    ListReader(std::vector<ColumnInfo> columns, std::vector<KeyRow> rows)
        : RowCarrier(std::move(columns)), rows_(std::move(rows))
    {}

    bool next() override;

private:
    std::vector<KeyRow> rows_;
    std::size_t next_ = 0;
};

} // namespace quelvarn::odbc
