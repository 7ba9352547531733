#include "tools/check/schema.h"

#include "base/collation.h"
#include "tools/check/findings.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

std::string_view typeName(FieldType type)
{
    switch (type) {
    case FieldType::Text:
        return "Text";
    case FieldType::Integer:
        return "Ganzzahl";
    case FieldType::FloatingPoint:
        return "Kommazahl";
    case FieldType::Date:
        break;
    }
    return "Datum";
}

const ColumnInfo* findColumn(const TableSchema& table, std::string_view name)
{
    const auto column =
        std::ranges::find_if(table.columns, [&](const ColumnInfo& s) { return equalText(s.name, name); });
    return column == table.columns.end() ? nullptr : &*column;
}

// A whole number does for any number, and the day of saving may be kept as a text.
bool typeFits(const ColumnInfo& should, const ColumnInfo& is)
{
    return should.type == is.type || (should.type == FieldType::FloatingPoint && is.type == FieldType::Integer) ||
           (should.name == "Gespeichert" && is.type == FieldType::Text);
}

// One row for each address, a column for each item.
bool isWideAdresstabelle(const TableSchema& should, const TableSchema& is)
{
    return should.name == "Adresstabelle" && findColumn(is, "Kennung") && findColumn(is, "Firma");
}

void checkColumns(const TableSchema& should, const TableSchema& is, Findings& findings)
{
    if (isWideAdresstabelle(should, is))
        return;
    for (const ColumnInfo& column : should.columns) {
        const ColumnInfo* existing = findColumn(is, column.name);
        if (!existing)
            findings.fault(fmt::format("Die Spalte {}.{} fehlt.", should.name, column.name));
        else if (!typeFits(column, *existing))
            findings.fault(fmt::format("Die Spalte {}.{} ist {}, nicht {}.", should.name, column.name,
                                       typeName(existing->type), typeName(column.type)));
    }
}

// Only those that can be built on the columns that are there.
TableSchema withMissingIndexes(Engine& engine, const TableSchema& should, const TableSchema& is)
{
    TableSchema table{is.name, should.columns, {}};
    for (const auto& index : engine.missingIndexes(should)) {
        const bool possible =
            std::ranges::all_of(index, [&](const IndexColumn& column) { return findColumn(is, column.name); });
        if (possible)
            table.indexes.push_back(index);
    }
    return table;
}

} // namespace

void checkSchema(Engine& engine, Indexes indexes, Findings& findings)
{
    for (const TableSchema& should : registerSchema()) {
        const auto is = engine.findTable(should.name);
        if (!is) {
            findings.fault(fmt::format("Die Tabelle {} fehlt.", should.name));
            continue;
        }
        checkColumns(should, *is, findings);
        const TableSchema missing = withMissingIndexes(engine, should, *is);
        if (indexes == Indexes::Build && !missing.indexes.empty())
            engine.createIndexes(missing);
        for (const auto& index : missing.indexes) {
            std::string columns;
            for (const IndexColumn& column : index)
                columns += (columns.empty() ? "" : ", ") + column.name;
            const std::string name = fmt::format("Index der Tabelle {} über {}", should.name, columns);
            if (indexes == Indexes::Build)
                findings.row(fmt::format("Gebaut: {}", name));
            else
                findings.fault(fmt::format("Es fehlt der {}. Mit --repair wird er gebaut.", name));
        }
    }
}

} // namespace quelvarn::tools
