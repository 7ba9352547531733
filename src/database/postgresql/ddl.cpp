#include "database/postgresql/ddl.h"

#include "base/text.h"
#include "database/sql/renderer.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::postgresql {
namespace {

const auto identifier = sql::Dialect::identifier;

// Texts in the plain order of bytes: their own order comes from qv_key.
std::string_view declaration(FieldType type)
{
    switch (type) {
    case FieldType::Integer:
        return "bigint";
    case FieldType::FloatingPoint:
        return "double precision";
    case FieldType::Date:
        return "timestamp(0)";
    case FieldType::Text:
        break;
    }
    return "text COLLATE \"C\"";
}

bool isText(const TableSchema& table, const std::string& name)
{
    const auto column = std::ranges::find(table.columns, name, &ColumnInfo::name);
    return column != table.columns.end() && column->type == FieldType::Text;
}

} // namespace

std::string createTableStatement(const TableSchema& table)
{
    std::string columns = fmt::format("{} bigint GENERATED ALWAYS AS IDENTITY PRIMARY KEY", keyColumn);
    for (const ColumnInfo& column : table.columns)
        columns += fmt::format(", {} {}", identifier(column.name), declaration(column.type));
    return fmt::format("CREATE TABLE {} ({})", identifier(table.name), columns);
}

std::string createIndexStatement(const TableSchema& table, const std::vector<IndexColumn>& index)
{
    std::vector<std::string> sorted;
    std::vector<std::string> carried{std::string(keyColumn)};
    for (const IndexColumn& column : index) {
        if (column.longText || column.carried)
            continue;
        const std::string name = identifier(column.name);
        const bool text = isText(table, column.name);
        sorted.push_back((text ? "qv_key(" + name + ")" : name) +
                         (column.descending ? " DESC NULLS LAST" : " ASC NULLS FIRST"));
        if (text)
            carried.push_back(name);
    }
    // Lists are read from an index of several columns without the table, so it holds the texts beside their keys.
    const std::string added = sorted.size() > 1 ? " INCLUDE (" + join(carried, ", ") + ")" : "";
    return fmt::format("CREATE INDEX IF NOT EXISTS {} ON {} ({}){}", identifier(indexName(table, index)),
                       identifier(table.name), join(sorted, ", "), added);
}

std::string indexName(const TableSchema& table, const std::vector<IndexColumn>& index)
{
    return fmt::format("ix_{}_{}", table.name, index.front().name);
}

} // namespace quelvarn::postgresql
