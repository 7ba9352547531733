#pragma once

#include "database/engine.h"

namespace quelvarn::tools {

// Rows of a whole table in portions, where the engine has row keys: between two portions others may write. A row that
// goes meanwhile is left out, one that comes is not met.
class TableRows final : public RowReader
{
public:
    TableRows(Engine& engine, std::string table, std::vector<std::string> columns);

    const std::vector<ColumnInfo>& columns() const override { return portion_->columns(); }
    bool next() override;
    RowKey key() const override { return portion_->key(); }
    bool isNull(std::size_t column) const override { return portion_->isNull(column); }
    std::string_view text(std::size_t column) const override { return portion_->text(column); }
    std::int64_t integer(std::size_t column) const override { return portion_->integer(column); }
    double floatingPoint(std::size_t column) const override { return portion_->floatingPoint(column); }
    DateTime date(std::size_t column) const override { return portion_->date(column); }
    Value value(std::size_t column) const override { return portion_->value(column); }

private:
    void readPortion();

    Engine& engine_;
    std::string table_;
    std::vector<std::string> columns_;
    std::vector<RowKey> keys_;
    std::size_t read_ = 0; // Of the keys.
    std::unique_ptr<RowReader> portion_;
};

} // namespace quelvarn::tools
