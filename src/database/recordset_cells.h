#pragma once

#include "database/row_store.h"
#include "database/row_view.h"

#include <array>
#include <optional>
#include <vector>

namespace quelvarn {

// Cells of columns that are not in memory, read a few neighbouring rows at a time and kept for a while. To be
// emptied whenever rows change or their positions do.
class CellBuffer
{
public:
    // A cell for a list: a block of rows with the columns that were asked for so far.
    Value cell(const RowStore& rows, const RowView& view, std::size_t position, std::size_t field);
    // A cell of the current row: the row with all its columns. Who walks through the rows gets more and more of
    // them at once.
    Value rowValue(const RowStore& rows, const RowView& view, std::size_t position, std::size_t field);
    void clear();

private:
    struct Block
    {
        std::size_t from = 0;
        std::size_t until = 0;
        std::vector<std::size_t> fields;
        std::vector<Value> values; // row by row
        std::uint64_t used = 0;
    };
    const Value* find(std::size_t position, std::size_t field);
    void read(const RowStore& rows, const RowView& view, std::size_t from, std::size_t until,
              std::vector<std::size_t> fields);

    std::array<Block, 8> blocks_;
    std::uint64_t clock_ = 0;
    std::vector<std::size_t> asked_;
    std::size_t next_ = static_cast<std::size_t>(-1); // Behind the rows that rowValue read last.
    std::size_t step_ = 1;                            // How many these were.
};

} // namespace quelvarn
