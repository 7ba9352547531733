#include "database/sqlite/ddl.h"

#include "base/collation.h"
#include "database/sql/renderer.h"

#include <array>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <utility>

namespace quelvarn::sqlite {
namespace {

const auto identifier = sql::Dialect::identifier;

std::string_view declaration(FieldType type)
{
    switch (type) {
    case FieldType::Integer:
        return "INTEGER";
    case FieldType::FloatingPoint:
        return "REAL";
    case FieldType::Date:
        return "DATETIME";
    case FieldType::Text:
        break;
    }
    return "TEXT COLLATE QV";
}

} // namespace

std::string createTableStatement(const TableSchema& table)
{
    std::string columns = fmt::format("{} INTEGER PRIMARY KEY AUTOINCREMENT", keyColumn);
    for (const ColumnInfo& column : table.columns)
        columns += fmt::format(", {} {}", identifier(column.name), declaration(column.type));
    return fmt::format("CREATE TABLE {} ({})", identifier(table.name), columns);
}

std::string createIndexStatement(const TableSchema& table, const std::vector<IndexColumn>& index)
{
    std::vector<std::string> columns;
    for (const IndexColumn& column : index)
        columns.push_back(identifier(column.name) + (column.descending ? " DESC" : ""));
    return fmt::format("CREATE INDEX IF NOT EXISTS {} ON {} ({})", identifier(indexName(table, index)),
                       identifier(table.name), fmt::join(columns, ", "));
}

std::string indexName(const TableSchema& table, const std::vector<IndexColumn>& index)
{
    return fmt::format("ix_{}_{}{}", table.name, index.front().name, index.back().carried ? "_mit" : "");
}

FieldType fieldTypeFrom(std::string_view declaration)
{
    static constexpr std::array<std::pair<std::string_view, FieldType>, 12> parts{{
        {"char", FieldType::Text},
        {"text", FieldType::Text},
        {"date", FieldType::Date},
        {"time", FieldType::Date},
        {"int", FieldType::Integer},
        {"bool", FieldType::Integer},
        {"bit", FieldType::Integer},
        {"real", FieldType::FloatingPoint},
        {"floa", FieldType::FloatingPoint},
        {"doub", FieldType::FloatingPoint},
        {"num", FieldType::FloatingPoint},
        {"dec", FieldType::FloatingPoint},
    }};
    const std::string small = toLower(declaration);
    for (const auto& [part, type] : parts)
        if (small.find(part) != std::string::npos)
            return type;
    return FieldType::Text;
}

} // namespace quelvarn::sqlite
