#pragma once

#include "database/schema.h"
#include "database/value.h"
#include "tools/import/reader_protocol.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

constexpr std::size_t NOT_THERE = static_cast<std::size_t>(-1);

// How a table of the source becomes one of the register.
struct TableMapping
{
    TableSchema target;
    std::vector<std::size_t> source;     // For each column of the target: that of the source, or NOT_THERE.
    std::vector<std::size_t> notTaken;   // Columns of the source whose kind a register cannot hold.
    std::vector<std::string> additional; // Columns that the program does not know and keeps.
    std::vector<std::string> missing;    // Columns that the program knows and the source lacks.
};

// Columns go together by their names in any case. The address table keeps its shape: rows of name and value, or
// one row with many columns.
TableMapping mapTable(const SourceTable& source, const TableSchema& defaultValue);

// Nothing when the tables are those of a register; otherwise the German sentence that says why not.
std::optional<std::string> findObjection(const Catalog& catalog);

} // namespace quelvarn::tools
