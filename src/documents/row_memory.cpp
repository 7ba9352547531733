#include "documents/row_memory.h"

#include "base/collation.h"
#include "database/sql/conditions.h"
#include "documents/document_table.h"

#include <algorithm>
#include <optional>

namespace quelvarn {
namespace {

struct Hit
{
    std::size_t position = 0;
    bool samePath = false;
};

// Looks through the rows of one DokuBez, which stand together. Another path with the same revision is second best.
std::optional<Hit> findDocument(Recordset& table, const RowMemory& row)
{
    std::optional<Hit> secondBest;
    if (row.DokuBez.empty()) // Null as well, which meets no condition. They stand before all others.
        table.MoveFirst();
    else
        table.Find("DokuBez = " + sql::quoted(row.DokuBez), 0, SearchDirection::Forward, true);
    for (; !table.eof() && equalText(table.Text("DokuBez"), row.DokuBez); table.MoveNext()) {
        if (!equalText(table.Text("RevBez"), row.RevBez))
            continue;
        if (equalText(table.Text("filename"), row.filename))
            return Hit{table.absolutePosition(), true};
        if (!secondBest)
            secondBest = Hit{table.absolutePosition()};
    }
    return secondBest;
}

bool moveToHit(Recordset& table, const RowMemory& row, bool onlyThisPath)
{
    if (!table.open() || table.empty())
        return false;
    const std::size_t before = table.absolutePosition();
    const auto found = findDocument(table, row);
    if (found && (found->samePath || !onlyThisPath)) {
        table.setPosition(found->position);
        return true;
    }
    if (before < table.RecordCount())
        table.setPosition(before);
    return false;
}

} // namespace

RowMemory rememberRow(const DocumentTable& table)
{
    const DokuRecord& record = table.record();
    RowMemory row{record.DokuBez, record.RevBez, record.filename, 0};
    const Recordset& rows = table.rows();
    if (!table.isFiltered() && table.hasRows() && !rows.eof() && !rows.bof())
        row.position = rows.absolutePosition();
    return row;
}

void moveTo(Recordset& table, const RowMemory& row)
{
    const std::size_t last = table.RecordCount() - 1;
    const auto found = findDocument(table, row);
    table.setPosition(found ? found->position : std::min(row.position, last));
}

bool moveToFile(Recordset& table, const RowMemory& row)
{
    return moveToHit(table, row, true);
}

bool moveToDocument(Recordset& table, const RowMemory& row)
{
    return moveToHit(table, row, false);
}

} // namespace quelvarn
