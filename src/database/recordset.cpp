#include "database/recordset.h"

#include "database/connection.h"
#include "database/recordset_core.h"
#include "database/sql/parser.h"

#include <algorithm>

namespace quelvarn {

Recordset::Recordset() : core_(std::make_unique<Core>()) {}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

Recordset::Core& coreOf(Recordset& recordset)
{
    return *recordset.core_;
}

const Recordset::Core& coreOf(const Recordset& recordset)
{
    return *recordset.core_;
}

void Recordset::Open(sql::FixedText select, Connection& connection, CursorType cursor, LockType lock)
{
    auto statement = sql::parseStatement(select.text());
    auto* query = std::get_if<sql::Select>(&statement);
    if (!query)
        throw recordsetFault(3001, "Ein Recordset kann nur mit einer Auswahlabfrage geöffnet werden.");
    Open(std::move(*query), connection, cursor, lock);
}

void Recordset::Open(sql::Select select, Connection& connection, CursorType, LockType lock)
{
    auto opened = std::make_unique<Core>();
    opened->small = core_->small;
    opened->lock = lock;
    if (!connection.open())
        throw recordsetFault(3709, "Die Verbindung zur Datenbank ist nicht geöffnet.");
    opened->rows.open(
        connection.engine_, std::move(select),
        {.writable = lock != LockType::ReadOnly, .readWhole = lock == LockType::Batch, .small = opened->small});
    opened->view.showAll(opened->rows.count());
    opened->open = true;
    core_ = std::move(opened);
}

void Recordset::appendField(std::string_view name, FieldType type)
{
    if (core_->open)
        throw recordsetFault(3705, "Einem geöffneten Recordset kann kein Feld angehängt werden.");
    core_->rows.appendField({std::string(name), type});
}

void Recordset::Open()
{
    auto opened = std::make_unique<Core>();
    for (const ColumnInfo& field : core_->rows.fields())
        opened->rows.appendField(field);
    opened->lock = LockType::Optimistic;
    opened->open = true;
    core_ = std::move(opened);
}

void Recordset::Close()
{
    auto opened = std::make_unique<Core>();
    if (!core_->rows.engine())
        for (const ColumnInfo& field : core_->rows.fields())
            opened->rows.appendField(field);
    opened->small = core_->small;
    core_ = std::move(opened);
}

bool Recordset::open() const
{
    return core_->open;
}

const std::vector<ColumnInfo>& Recordset::fields() const
{
    return core_->rows.fields();
}

bool Recordset::bof() const
{
    const bool newRow = core_->pendingEdit && core_->pendingEdit->isNew;
    return !newRow && (core_->position < 0 || core_->view.count() == 0);
}

bool Recordset::eof() const
{
    const bool newRow = core_->pendingEdit && core_->pendingEdit->isNew;
    return !newRow && !core_->onRow() && (core_->position >= 0 || core_->view.count() == 0);
}

std::size_t Recordset::RecordCount() const
{
    return core_->view.count();
}

void Recordset::MoveFirst()
{
    core_->endEdit();
    if (core_->view.count() == 0)
        throw recordsetFault(3021, "Das Recordset ist leer.");
    core_->goTo(0);
}

void Recordset::MoveLast()
{
    core_->endEdit();
    if (core_->view.count() == 0)
        throw recordsetFault(3021, "Das Recordset ist leer.");
    core_->goTo(static_cast<std::ptrdiff_t>(core_->view.count()) - 1);
}

void Recordset::MoveNext()
{
    core_->endEdit();
    if (eof())
        throw recordsetFault(3021, "Hinter dem letzten Datensatz gibt es keinen weiteren.");
    core_->goTo(core_->position + 1);
}

void Recordset::movePrevious()
{
    core_->endEdit();
    if (bof())
        throw recordsetFault(3021, "Vor dem ersten Datensatz gibt es keinen weiteren.");
    core_->goTo(core_->position - 1);
}

Value Recordset::field(std::string_view name) const
{
    core_->requireOpen();
    return core_->fieldValue(core_->rows.fieldOf(name));
}

std::string Recordset::Text(std::string_view name) const
{
    return asText(field(name));
}

Bookmark Recordset::bookmark() const
{
    return core_->currentRow();
}

bool Recordset::setBookmark(Bookmark row)
{
    core_->endEdit();
    const auto position = core_->view.findPosition(row);
    if (position)
        core_->goTo(static_cast<std::ptrdiff_t>(*position));
    return position.has_value();
}

std::size_t Recordset::absolutePosition() const
{
    return core_->onRow() ? static_cast<std::size_t>(core_->position) : RecordCount();
}

void Recordset::setPosition(std::size_t position)
{
    core_->endEdit();
    if (position >= RecordCount())
        throw recordsetFault(3001, "So viele Datensätze hat das Recordset nicht.");
    core_->goTo(static_cast<std::ptrdiff_t>(position));
}

Value Recordset::cell(std::size_t position, std::string_view name) const
{
    const std::size_t field = core_->rows.fieldOf(name);
    if (position >= RecordCount())
        throw recordsetFault(3021, "Diesen Datensatz gibt es nicht.");
    if (core_->rows.loaded(field))
        return core_->rows.column(field).value(core_->view.row(position));
    return core_->buffer.cell(core_->rows, core_->view, position, field);
}

} // namespace quelvarn
