#pragma once

#include "base/runtime_error.h"
#include "database/filter_evaluator.h"
#include "database/recordset.h"
#include "database/recordset_cells.h"
#include "database/recordset_sort.h"
#include "database/row_store.h"
#include "database/row_view.h"
#include "database/sql/ast.h"

#include <optional>
#include <string>
#include <vector>

namespace quelvarn {

// A row that is being changed, or a new one: the values set so far, by field.
struct PendingEdit
{
    bool fresh = false;
    std::vector<std::optional<Value>> values;
};

// A change that waits for UpdateBatch.
struct WaitingChange
{
    enum class Kind { Fresh, Geaendert, Removed } kind;
    RowNumber row;
    std::vector<sql::Assignment> values;
};

// What a recordset holds: its rows, the view of them, the place of the cursor and what is not yet written.
struct Recordset::Core
{
    // --- recordset.cpp ---
    void requireOpen() const;
    bool onRow() const { return position >= 0 && position < static_cast<std::ptrdiff_t>(view.count()); }
    // Throws RuntimeError 3021 where there is no current row.
    std::size_t currentPosition() const;
    RowNumber currentRow() const { return view.row(currentPosition()); }
    Value fieldValue(std::size_t field) const;
    void goTo(std::ptrdiff_t newPosition);

    // --- recordset_edit.cpp ---
    void requireWritable() const;
    bool batch() const { return rows.engine() && lock == LockType::Batch; }
    // Writes what is being changed, as every move of the cursor does.
    void endEdit();
    void writeNew(const PendingEdit& fresh);
    void writeChanged(const PendingEdit& changed);
    std::vector<sql::Assignment> assignments(const PendingEdit& source) const;
    void adopt(RowNumber row, const PendingEdit& source);
    void execute(const WaitingChange& change);

    // --- recordset_find.cpp ---
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
    // The first row of the view, from `ab` on, that is chosen.
    std::optional<std::ptrdiff_t> findPosition(Selection& selection, std::ptrdiff_t start, bool forward) const;

    bool open = false;
    LockType lock = LockType::ReadOnly;
    RowStore rows;
    RowView view;
    std::ptrdiff_t position = 0; // -1: Bof; behind the last one: Eof
    mutable CellBuffer buffer;

    RowFilter filter;
    std::vector<RowNumber> removed; // ascending
    bool sorted = false;
    std::vector<RowNumber> rowOrder; // All rows not deleted, when sorted.

    std::optional<PendingEdit> pendingEdit;
    std::vector<WaitingChange> waiting;
    std::size_t small = 2048; // Results up to this many rows are read whole.
};

// A fault of a recordset, told in German.
RuntimeError recordsetFault(int number, const std::string& description);

} // namespace quelvarn
