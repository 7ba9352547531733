#include "documents/document_table.h"

#include "session/operations.h"

#include <utility>

namespace quelvarn {

void DocumentTable::open(Recordset rows, DateTime nextCheck)
{
    rows_ = std::move(rows);
    result_ = Recordset();
    count_ = rows_.RecordCount();
    state_ = rows_.empty() ? TableState::Empty : TableState::Open;
    narrowing_ = {};
    nextCheck_ = nextCheck;
    rowsChanged();
}

void DocumentTable::showFiltered(Narrowing narrowing)
{
    result_ = Recordset();
    state_ = TableState::Filtered;
    narrowing_ = std::move(narrowing);
    rowsChanged();
}

void DocumentTable::showResult(Recordset result, Narrowing narrowing)
{
    result_ = std::move(result);
    state_ = TableState::FilterResult;
    narrowing_ = std::move(narrowing);
    rowsChanged();
}

void DocumentTable::showAll(const StatusCondition& stays)
{
    result_ = Recordset();
    state_ = count_ > 0 ? TableState::Open : TableState::Empty;
    if (rows_.filter().text != stays.StatusFilter)
        rows_.Filter(stays.StatusFilter);
    narrowing_ = {{}, stays, {}};
    rowsChanged();
}

void DocumentTable::markNewer()
{
    if (isOpen())
        state_ = TableState::NewerData;
}

void DocumentTable::rebuildLater()
{
    if (isOpen())
        state_ = TableState::Rebuild;
}

void DocumentTable::close()
{
    rows_ = Recordset();
    result_ = Recordset();
    state_ = TableState::NotOpen;
    count_ = 0;
    narrowing_ = {};
    nextCheck_ = {};
    record_ = {};
    rowsChanged();
}

const DokuRecord& DocumentTable::readRecord()
{
    record_ = readDocumentRecord(visible(), *type_);
    return record_;
}

void DocumentTable::rowsChanged()
{
    ++generation_;
    operations_->changed(Part::Rows);
}

} // namespace quelvarn
