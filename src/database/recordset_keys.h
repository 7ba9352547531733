#pragma once

#include "database/column.h"
#include "database/engine.h"

#include <optional>
#include <span>
#include <vector>

namespace quelvarn {

// Finds the row of a key. Keys that lie close together take an array, others a sorted list.
class KeyMap
{
public:
    explicit KeyMap(std::span<const RowKey> key);
    // Quick above all when keys are asked for in ascending order.
    std::optional<RowNumber> findRow(RowKey key);

private:
    struct Entry
    {
        RowKey key;
        RowNumber row;
    };
    RowKey smallest_ = 0;
    std::vector<RowNumber> dense_;
    std::vector<Entry> sorted_;
    std::size_t next_ = 0;
};

} // namespace quelvarn
