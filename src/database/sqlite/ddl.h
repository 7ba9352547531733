#pragma once

#include "database/schema.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::sqlite {

// The hidden key. A number is never given twice, so a deleted row's key finds no other row.
inline constexpr std::string_view keyColumn = "qv_id";

std::string createTableStatement(const TableSchema& table);
std::string createIndexStatement(const TableSchema& table, const std::vector<IndexColumn>& index);
std::string indexName(const TableSchema& table, const std::vector<IndexColumn>& index);
// What a column's declaration means to the program; foreign declarations too.
FieldType fieldTypeFrom(std::string_view declaration);

} // namespace quelvarn::sqlite
