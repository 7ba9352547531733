#pragma once

#include "database/recordset.h"

namespace quelvarn {

bool hasField(const Recordset& recordset, std::string_view name); // In any case.
// Results up to this many rows are read whole at the opening; 2,048 unless told. Set it before.
void setWholeLimit(Recordset& recordset, std::size_t rows);
// Reads whole columns into memory in one pass, which filters, searches and lists over them do by themselves.
// False when it was given up: then none of them is there.
bool loadColumns(Recordset& recordset, std::span<const std::string> fields, const Progress& progress = {});
bool loadColumn(Recordset& recordset, std::string_view field, const Progress& progress = {});
bool columnLoaded(const Recordset& recordset, std::string_view field);
std::size_t memoryNeed(const Recordset& recordset); // bytes

} // namespace quelvarn
