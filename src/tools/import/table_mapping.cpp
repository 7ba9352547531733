#include "tools/import/table_mapping.h"

#include "base/collation.h"
#include "database/document_types.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

std::size_t findColumn(const SourceTable& table, std::string_view name)
{
    const auto column = std::ranges::find_if(table.columns, [&](const auto& s) { return equalText(s.name, name); });
    return column == table.columns.end() ? NOT_THERE : static_cast<std::size_t>(column - table.columns.begin());
}

bool hasColumns(const SourceTable& table, std::initializer_list<std::string_view> names)
{
    return std::ranges::all_of(names, [&](auto name) { return findColumn(table, name) != NOT_THERE; });
}

FieldType fieldType(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Integer:
        return FieldType::Integer;
    case ColumnKind::FloatingPoint:
        return FieldType::FloatingPoint;
    case ColumnKind::Date:
        return FieldType::Date;
    default:
        return FieldType::Text;
    }
}

// Scanners of different age write it as a text or as a date, and it is shown as it stands.
FieldType targetType(const ColumnInfo& defaultValue, ColumnKind source)
{
    const bool asSource =
        equalText(defaultValue.name, "Gespeichert") && (source == ColumnKind::Text || source == ColumnKind::Date);
    return asSource ? fieldType(source) : defaultValue.type;
}

bool isWideAdresstabelle(const SourceTable& source, const TableSchema& defaultValue)
{
    return defaultValue.name == "Adresstabelle" && findColumn(source, "Name") == NOT_THERE &&
           findColumn(source, "Wert") == NOT_THERE;
}

bool allColumnsLoaded(const TableSchema& table, const std::vector<IndexColumn>& index)
{
    return std::ranges::all_of(index, [&](const IndexColumn& column) {
        return std::ranges::any_of(table.columns, [&](const ColumnInfo& s) { return equalText(s.name, column.name); });
    });
}

} // namespace

TableMapping mapTable(const SourceTable& source, const TableSchema& defaultValue)
{
    TableMapping result;
    result.target.name = defaultValue.name;
    std::vector<bool> used(source.columns.size());
    const bool wide = isWideAdresstabelle(source, defaultValue);
    for (const ColumnInfo& column : defaultValue.columns) {
        const auto number = findColumn(source, column.name);
        if (number == NOT_THERE && wide)
            continue;
        if (number == NOT_THERE)
            result.missing.push_back(column.name);
        else
            used[number] = true;
        result.target.columns.push_back(
            {column.name, number == NOT_THERE ? column.type : targetType(column, source.columns[number].kind)});
        result.source.push_back(number);
    }
    for (std::size_t i = 0; i < source.columns.size(); ++i) {
        if (source.columns[i].kind == ColumnKind::Fremd)
            result.notTaken.push_back(i);
        if (used[i] || source.columns[i].kind == ColumnKind::Fremd)
            continue;
        result.target.columns.push_back({source.columns[i].name, fieldType(source.columns[i].kind)});
        result.source.push_back(i);
        if (!wide)
            result.additional.push_back(source.columns[i].name);
    }
    for (const auto& index : defaultValue.indexes)
        if (allColumnsLoaded(result.target, index))
            result.target.indexes.push_back(index);
    return result;
}

std::optional<std::string> findObjection(const Catalog& catalog)
{
    const auto find = [&](std::string_view name) {
        return std::ranges::find_if(catalog.tables, [&](const auto& t) { return equalText(t.name, name); });
    };
    const auto ini = find("Ini");
    if (ini == catalog.tables.end())
        return "die Tabelle Ini fehlt";
    if (!hasColumns(*ini, {"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"}))
        return "die Tabelle Ini hat nicht die Spalten Feld1 bis Feld5";
    const bool withDocuments = std::ranges::any_of(DOCUMENT_TYPES, [&](const DocumentType& type) {
        const auto table = find(type.table);
        return table != catalog.tables.end() && hasColumns(*table, {"DokuBez", "RevBez", "filename", "Status"});
    });
    if (!withDocuments)
        return "es fehlen die Tabellen der Dokumente";
    return std::nullopt;
}

} // namespace quelvarn::tools
