#pragma once

#include "database/engine.h"
#include "database/sqlite/statement.h"

namespace quelvarn::sqlite {

// The rows of a prepared statement. Its first column is the row key when it has one.
class Reader final : public RowReader
{
public:
    Reader(Statement statement, std::vector<ColumnInfo> columns, WithKey key);

    const std::vector<ColumnInfo>& columns() const override { return columns_; }
    // Steps to the first row, so that a fault of the statement comes here.
    void begin();
    bool next() override;
    RowKey key() const override;
    bool isNull(std::size_t column) const override;
    std::string_view text(std::size_t column) const override;
    std::optional<std::string_view> findText(std::size_t column) const override;
    std::int64_t integer(std::size_t column) const override;
    double floatingPoint(std::size_t column) const override;
    DateTime date(std::size_t column) const override;
    Value value(std::size_t column) const override;

private:
    int position(std::size_t column) const { return static_cast<int>(column) + offset_; }

    Statement statement_;
    sqlite3_stmt* raw_;
    std::vector<ColumnInfo> columns_;
    int offset_; // 1 behind a row key
    bool atEnd_ = false;
    bool onFirst_ = false; // begin() was there already.
};

} // namespace quelvarn::sqlite
