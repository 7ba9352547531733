#pragma once

#include "database/value.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

struct ColumnInfo
{
    std::string name;
    FieldType type = FieldType::Text;
    bool operator==(const ColumnInfo&) const = default;
};

// A column of an index; the order is that of sortKey for texts, Null before everything.
struct IndexColumn
{
    std::string name;
    bool descending = false;
    bool longText = false; // May hold long texts: an engine whose index rows are limited in length leaves it out.
    bool carried = false; // Only there to be read from the index alone; an engine that reads rows anyway leaves it out.
};

struct TableSchema
{
    std::string name;
    std::vector<ColumnInfo> columns;
    std::vector<std::vector<IndexColumn>> indexes;
};

// Every table that the program knows, with its columns and the indexes that its queries want.
std::span<const TableSchema> registerSchema();
// The table of this name in any case; nullptr when the program knows none.
const TableSchema* findTable(std::string_view name);

} // namespace quelvarn
