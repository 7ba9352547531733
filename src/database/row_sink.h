#pragma once

#include "database/schema.h"
#include "database/value.h"

#include <span>

namespace quelvarn {

// Takes rows, table by table.
class RowSink
{
public:
    virtual ~RowSink() = default;
    // The rows that follow belong to this table, cells in the order of its columns.
    virtual void table(const TableSchema& table) = 0;
    virtual void row(std::span<const Value> values) = 0;
};

} // namespace quelvarn
