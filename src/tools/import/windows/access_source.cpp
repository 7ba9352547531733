#include "tools/import/access_source.h"

#include "base/collation.h"
#include "database/engine.h"
#include "database/open_engine.h"
#include "tools/console.h"
#include "tools/import/access_header.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

ColumnKind columnKind(FieldType type)
{
    switch (type) {
    case FieldType::Integer:
        return ColumnKind::Integer;
    case FieldType::FloatingPoint:
        return ColumnKind::FloatingPoint;
    case FieldType::Date:
        return ColumnKind::Date;
    case FieldType::Text:
        break;
    }
    return ColumnKind::Text;
}

SourceTable description(const TableSchema& table)
{
    SourceTable result{table.name, {}, 0};
    for (const ColumnInfo& column : table.columns)
        result.columns.push_back({column.name, columnKind(column.type)});
    return result;
}

// A text of the reader stays where it is until its next row.
Cell cellOf(const RowReader& rows, std::size_t column)
{
    Cell cell;
    if (rows.isNull(column))
        return cell;
    const Value value = rows.value(column);
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        cell.kind = CellKind::Integer;
        cell.integer = *number;
    } else if (const auto* bruch = std::get_if<double>(&value)) {
        cell.kind = CellKind::FloatingPoint;
        cell.floatingPoint = *bruch;
    } else if (const auto* time = std::get_if<DateTime>(&value)) {
        cell.kind = CellKind::Date;
        cell.floatingPoint = time->asDays();
    } else {
        cell.kind = CellKind::Text;
        cell.text = rows.text(column);
    }
    return cell;
}

} // namespace

struct AccessSource::Reader
{
    std::shared_ptr<Engine> engine;
};

AccessSource::AccessSource(const std::filesystem::path& file, std::span<const std::string> wanted,
                           std::chrono::milliseconds)
{
    checkAccessHeader(file);
    reader_ = std::make_unique<Reader>(Reader{openAccess(file)});
    if (!reader_->engine)
        throw toolFault("Auf diesem Rechner fehlt der ODBC-Treiber \"Microsoft Access Driver (*.mdb, *.accdb)\" in der "
                        "64-Bit-Fassung. Er kommt mit Access oder mit der \"Microsoft Access Database Engine\".");
    for (const std::string& name : reader_->engine->tables()) {
        const bool sought = std::ranges::any_of(wanted, [&](const auto& w) { return equalText(w, name); });
        const auto table = sought ? reader_->engine->findTable(name) : std::nullopt;
        if (table)
            catalog_.tables.push_back(description(*table));
        else if (!name.starts_with('~')) // Leavings of a table that is being deleted.
            catalog_.remaining.push_back(name);
    }
}

AccessSource::~AccessSource() = default;

void AccessSource::read(const std::function<void(const SourceTable&)>& table,
                        const std::function<void(std::span<const Cell>)>& row)
{
    std::vector<Cell> cells;
    for (const SourceTable& next : catalog_.tables) {
        table(next);
        cells.assign(next.columns.size(), {});
        sql::Select everything;
        everything.table = next.name;
        for (const auto rows = reader_->engine->read(everything, WithKey::No); rows->next();) {
            for (std::size_t i = 0; i < cells.size(); ++i)
                cells[i] = cellOf(*rows, i);
            row(cells);
        }
    }
}

} // namespace quelvarn::tools
