#pragma once

#include "database/schema.h"

#include <string>
#include <vector>

namespace quelvarn::postgresql {

// The hidden key. A number is never given twice, so a deleted row's key finds no other row.
inline constexpr std::string_view keyColumn = "qv_id";

std::string createTableStatement(const TableSchema& table);
std::string createIndexStatement(const TableSchema& table, const std::vector<IndexColumn>& index);
std::string indexName(const TableSchema& table, const std::vector<IndexColumn>& index);

} // namespace quelvarn::postgresql
