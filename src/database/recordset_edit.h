#pragma once

#include "database/recordset.h"
#include "database/recordset_find.h"

#include <optional>
#include <vector>

namespace quelvarn {

// A row that is being changed, or a new one: the values set so far, by field.
struct PendingEdit
{
    bool isNew = false;
    std::vector<std::optional<Value>> values;
};

// A change that waits for UpdateBatch.
struct WaitingChange
{
    enum class Kind { Insert, Change, Remove } kind;
    RowNumber row;
    std::vector<sql::Assignment> values;
};

// The rows of a recordset and what of them is not yet written.
struct RecordsetEdit : RecordsetRows
{
    void requireWritable() const;
    bool batch() const { return rows.engine() && lock == LockType::Batch; }
    // Of the current row, as it is being changed.
    Value fieldValue(std::size_t field) const;
    // Writes what is being changed, as every move of the cursor does.
    void endEdit();
    void writeNew(const PendingEdit& edit);
    void writeChanged(const PendingEdit& changed);
    std::vector<sql::Assignment> assignments(const PendingEdit& source) const;
    void adopt(RowNumber row, const PendingEdit& source);
    void execute(const WaitingChange& change);

    LockType lock = LockType::ReadOnly;
    std::optional<PendingEdit> pendingEdit;
    std::vector<WaitingChange> waiting;
};

} // namespace quelvarn
