#pragma once

#include "database/engine.h"

namespace quelvarn {

// The rows of a DISTINCT, which a server tells apart by case and trailing blanks: one of each set of equal rows,
// in the order and number asked for.
class DistinctReader final : public RowReader
{
public:
    DistinctReader(RowReader& server, const std::vector<sql::Sort>& rowOrder, std::size_t limit);

    const std::vector<ColumnInfo>& columns() const override { return columns_; }
    bool next() override { return ++next_ <= rows_.size(); }
    RowKey key() const override { return 0; }
    bool isNull(std::size_t column) const override { return quelvarn::isNull(cell(column)); }
    std::string_view text(std::size_t column) const override;
    std::int64_t integer(std::size_t column) const override { return asInteger(cell(column)); }
    double floatingPoint(std::size_t column) const override { return asNumber(cell(column)); }
    DateTime date(std::size_t column) const override { return asDate(cell(column)); }
    Value value(std::size_t column) const override { return cell(column); }

private:
    using Row = std::vector<Value>;

    void read(RowReader& server);
    void sort(const std::vector<sql::Sort>& rowOrder);
    const Value& cell(std::size_t column) const { return rows_[next_ - 1][column]; }

    std::vector<ColumnInfo> columns_;
    std::vector<Row> rows_;
    std::size_t next_ = 0;
    mutable std::string text_;
};

} // namespace quelvarn
