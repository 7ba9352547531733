#pragma once

#include "database/column.h"

#include <optional>
#include <vector>

namespace quelvarn {

// Which rows a recordset shows, and in which order. All rows in the order of opening take no memory.
class RowView
{
public:
    void showAll(std::size_t rows);
    // `ascending`: the rows stand in the order of opening.
    void show(std::vector<RowNumber> rows, bool ascending);

    std::size_t count() const { return all_ ? count_ : rows_.size(); }
    RowNumber row(std::size_t position) const { return all_ ? static_cast<RowNumber>(position) : rows_[position]; }
    std::optional<std::size_t> findPosition(RowNumber row) const;
    std::vector<RowNumber> crop(std::size_t from, std::size_t until) const;

    void append(RowNumber row);
    void remove(std::size_t position);
    std::size_t memory() const { return rows_.capacity() * sizeof(RowNumber); }

private:
    void writeOut();

    bool all_ = true;
    bool ascending_ = true;
    std::size_t count_ = 0;
    std::vector<RowNumber> rows_;
};

} // namespace quelvarn
