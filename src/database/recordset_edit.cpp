#include "database/recordset_edit.h"

#include "database/recordset_core.h"
#include "database/sql/column_value.h"

#include <algorithm>
#include <utility>

namespace quelvarn {

namespace {

constexpr int ROW_MISSING = -2147217864;

// The fault that led here is the one to tell, not that of taking back.
void rollBack(Engine& engine)
{
    try {
        engine.rollBack();
    } catch (const RuntimeError&) {
        return;
    }
}

} // namespace

void Recordset::setField(std::string_view name, Value value)
{
    core_->requireWritable();
    const std::size_t field = core_->rows.fieldOf(name);
    value = sql::storedValue(value, fields()[field].type);
    if (!core_->pendingEdit) {
        core_->currentPosition();
        core_->pendingEdit = PendingEdit{false, std::vector<std::optional<Value>>(fields().size())};
    }
    core_->pendingEdit->values[field] = std::move(value);
}

void Recordset::AddNew()
{
    core_->requireWritable();
    core_->endEdit();
    core_->pendingEdit = PendingEdit{true, std::vector<std::optional<Value>>(fields().size())};
}

void Recordset::Update()
{
    core_->endEdit();
}

void Recordset::CancelUpdate()
{
    core_->pendingEdit.reset();
}

void Recordset::Delete()
{
    Core& core = *core_;
    core.requireWritable();
    if (const auto pendingEdit = std::exchange(core.pendingEdit, {}); pendingEdit && pendingEdit->isNew)
        return;
    const RowNumber row = core.currentRow();
    if (core.batch())
        core.waiting.push_back({WaitingChange::Kind::Remove, row, {}});
    else if (core.rows.engine())
        core.rows.engine()->remove(core.rows.table(), core.rows.key(row));

    core.view.remove(static_cast<std::size_t>(core.position));
    std::erase(core.rowOrder, row);
    core.removed.insert(std::lower_bound(core.removed.begin(), core.removed.end(), row), row);
    core.buffer.clear();
}

void Recordset::UpdateBatch()
{
    Core& core = *core_;
    core.requireWritable();
    core.endEdit();
    if (core.waiting.empty())
        return;
    Engine& engine = *core.rows.engine();
    engine.begin();
    try {
        for (const WaitingChange& change : core.waiting)
            core.execute(change);
        engine.commit();
    } catch (const RuntimeError&) {
        rollBack(engine);
        throw;
    }
    core.waiting.clear();
}

void RecordsetEdit::requireWritable() const
{
    requireOpen();
    if (lock == LockType::ReadOnly || (rows.engine() && !rows.hasKey()))
        throw recordsetFault(3251, "Das Recordset ist nur zum Lesen geöffnet.");
}

void RecordsetEdit::endEdit()
{
    requireOpen();
    // A row that could not be written is as it was before.
    const auto finished = std::exchange(pendingEdit, {});
    if (!finished)
        return;
    if (finished->isNew)
        writeNew(*finished);
    else
        writeChanged(*finished);
    buffer.clear();
}

void RecordsetEdit::writeNew(const PendingEdit& edit)
{
    RowKey key = 0;
    if (rows.engine() && !batch())
        key = rows.engine()->insert(rows.table(), assignments(edit));
    const RowNumber row = rows.appendRow();
    if (rows.engine())
        rows.setKey(row, key);
    if (batch())
        waiting.push_back({WaitingChange::Kind::Insert, row, assignments(edit)});
    adopt(row, edit);
    view.append(row);
    if (sorted)
        rowOrder.push_back(row);
    position = static_cast<std::ptrdiff_t>(view.count()) - 1;
}

void RecordsetEdit::writeChanged(const PendingEdit& changed)
{
    const RowNumber row = currentRow();
    WaitingChange change{WaitingChange::Kind::Change, row, assignments(changed)};
    if (batch())
        waiting.push_back(std::move(change));
    else if (rows.engine())
        execute(change);
    adopt(row, changed);
}

std::vector<sql::Assignment> RecordsetEdit::assignments(const PendingEdit& source) const
{
    std::vector<sql::Assignment> result;
    for (std::size_t field = 0; field < source.values.size(); ++field)
        if (source.values[field])
            result.push_back({rows.fields()[field].name, *source.values[field]});
    return result;
}

void RecordsetEdit::adopt(RowNumber row, const PendingEdit& source)
{
    for (std::size_t field = 0; field < source.values.size(); ++field)
        if (source.values[field])
            rows.set(row, field, *source.values[field]);
}

void RecordsetEdit::execute(const WaitingChange& change)
{
    Engine& engine = *rows.engine();
    const RowKey key = rows.key(change.row);
    switch (change.kind) {
    case WaitingChange::Kind::Insert:
        rows.setKey(change.row, engine.insert(rows.table(), change.values));
        return;
    case WaitingChange::Kind::Change:
        if (!engine.update(rows.table(), key, change.values))
            throw recordsetFault(ROW_MISSING,
                                 "Der Datensatz wurde inzwischen von einem anderen Anwender geändert oder gelöscht.");
        return;
    case WaitingChange::Kind::Remove:
        engine.remove(rows.table(), key);
    }
}

Value RecordsetEdit::fieldValue(std::size_t field) const
{
    if (pendingEdit && pendingEdit->values[field])
        return *pendingEdit->values[field];
    if (pendingEdit && pendingEdit->isNew)
        return {};
    const std::size_t place = currentPosition();
    if (rows.loaded(field))
        return rows.column(field).value(view.row(place));
    return buffer.rowValue(rows, view, place, field);
}

} // namespace quelvarn
