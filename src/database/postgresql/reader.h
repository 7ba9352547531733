#pragma once

#include "database/engine.h"
#include "database/postgresql/handle.h"

#include <deque>
#include <exception>

namespace quelvarn::postgresql {

// The rows of a statement as the server sends them, one by one. Its first column is the row key when it has one.
class Reader final : public RowReader
{
public:
    Reader(std::shared_ptr<Handle> handle, const std::string& sql, std::span<const Value> parameter,
           std::vector<ColumnInfo> columns, WithKey key);
    ~Reader() override;

    const std::vector<ColumnInfo>& columns() const override { return columns_; }
    bool next() override;
    RowKey key() const override;
    bool isNull(std::size_t column) const override;
    std::string_view text(std::size_t column) const override;
    std::int64_t integer(std::size_t column) const override;
    double floatingPoint(std::size_t column) const override;
    DateTime date(std::size_t column) const override;
    Value value(std::size_t column) const override;

    // Takes the other rows into memory: the connection is wanted for another statement. A fault meanwhile is that of
    // this reader alone, and told behind the rows that came before it.
    void holeRest() noexcept;

private:
    Result fetchRow();
    Result take(Result piece);

    std::shared_ptr<Handle> handle_;
    std::vector<ColumnInfo> columns_;
    int offset_; // 1 behind a row key
    bool onServer_ = true;
    Result row_;
    std::deque<Result> rest_;
    std::exception_ptr fault_; // Rows are missing.
};

} // namespace quelvarn::postgresql
