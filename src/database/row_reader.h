#pragma once

#include "database/schema.h"
#include "database/value.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quelvarn {

using RowKey = std::int64_t;

// Typed rows of a result, one at a time. Text views hold until the next call of next().
class RowReader
{
public:
    virtual ~RowReader() = default;
    // Of the selected columns, the row key not among them.
    virtual const std::vector<ColumnInfo>& columns() const = 0;
    virtual bool next() = 0;
    virtual RowKey key() const = 0; // 0 when the engine gives none for this statement.
    virtual bool isNull(std::size_t column) const = 0;
    virtual std::string_view text(std::size_t column) const = 0;
    // The text, or nothing for Null: one question where a column is read whole.
    virtual std::optional<std::string_view> findText(std::size_t column) const
    {
        return isNull(column) ? std::nullopt : std::optional(text(column));
    }
    virtual std::int64_t integer(std::size_t column) const = 0;
    virtual double floatingPoint(std::size_t column) const = 0;
    virtual DateTime date(std::size_t column) const = 0;
    // The cell by its column's type; a cell that does not fit its type (a text in a number column) as it is.
    virtual Value value(std::size_t column) const = 0;
};

} // namespace quelvarn
