#include "database/catalog.h"

#include "base/collation.h"
#include "base/runtime_error.h"
#include "database/sql/renderer.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn {

TableCatalog::TableCatalog(Reader reader) : reader_(std::move(reader)) {}

const TableSchema* TableCatalog::find(std::string_view name)
{
    std::string key = foldCase(name);
    if (const auto hits = tables_.find(key); hits != tables_.end())
        return &hits->second;
    auto table = reader_(name);
    return table ? &tables_.emplace(std::move(key), std::move(*table)).first->second : nullptr;
}

const TableSchema& TableCatalog::tableOf(std::string_view name, std::string_view engine)
{
    if (const TableSchema* table = find(name))
        return *table;
    throw RuntimeError(FAULT_MISSING_TABLE, std::string(engine),
                       fmt::format("Die Tabelle '{}' wurde nicht gefunden.", name));
}

void TableCatalog::forget()
{
    tables_.clear();
}

std::vector<ColumnInfo> columnsOf(const TableSchema& table, std::span<const ColumnInfo> wanted)
{
    std::vector<ColumnInfo> columns;
    for (const ColumnInfo& sought : wanted) {
        const auto hits = std::ranges::find_if(
            table.columns, [&](const ColumnInfo& column) { return equalText(column.name, sought.name); });
        if (hits == table.columns.end())
            throw RuntimeError(
                sql::FAULT_MISSING_FIELD, "Datenbank",
                fmt::format("Feld '{}' ist in der Tabelle '{}' nicht vorhanden.", sought.name, table.name));
        columns.push_back(*hits);
    }
    return columns;
}

const std::string& targetTable(const sql::Statement& statement)
{
    return std::visit([](const auto& kind) -> const std::string& { return kind.table; }, statement);
}

} // namespace quelvarn
