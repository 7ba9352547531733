#pragma once

#include "base/runtime_error.h"
#include "database/filter_evaluator.h"
#include "database/recordset_cells.h"
#include "database/recordset_sort.h"
#include "database/row_filter.h"
#include "database/row_store.h"
#include "database/row_view.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quelvarn {

// The rows of a recordset, the view of them, and the place of the cursor in it.
struct RecordsetRows
{
    void requireOpen() const;
    bool onRow() const { return position >= 0 && position < static_cast<std::ptrdiff_t>(view.count()); }
    // Throws RuntimeError 3021 where there is no current row.
    std::size_t currentPosition() const;
    RowNumber currentRow() const { return view.row(currentPosition()); }
    void goTo(std::ptrdiff_t newPosition);

    // All rows that were not deleted, in the present order.
    std::vector<RowNumber> allRows() const;
    // Puts them in the order of these fields, or of the opening, and hands them out.
    std::vector<RowNumber> setRowOrder(const std::vector<SortField>& fields);
    void showAll();
    void show(std::vector<RowNumber> found);
    // Over columns in memory.
    std::unique_ptr<Selection> buildSelectionOf(const sql::Expression& expression) const;
    // All rows that meet the filter, in the present order; nothing when the progress was given up.
    std::optional<std::vector<RowNumber>> choose(const RowFilter& filter, const Progress& progress);
    // False when the progress was given up.
    bool loadNamed(std::span<const SharedCondition> conditions, const Progress& progress);
    // The first row of the view, from `start` on, that is chosen.
    std::optional<std::ptrdiff_t> findPosition(Selection& selection, std::ptrdiff_t start, bool forward) const;

    bool open = false;
    RowStore rows;
    RowView view;
    std::ptrdiff_t position = 0; // -1: Bof; behind the last one: Eof
    mutable CellBuffer buffer;
    std::vector<RowNumber> removed; // ascending
    bool sorted = false;
    std::vector<RowNumber> rowOrder; // All rows not deleted, when sorted.
};

// A fault of a recordset, told in German.
RuntimeError recordsetFault(int number, const std::string& description);

} // namespace quelvarn
