#pragma once

#include "database/engine.h"
#include "database/recordset.h"

namespace quelvarn {

// These rows of one table with all its columns, in this order, read as those of a query are; not to be changed.
void openRows(Recordset& recordset, std::string_view table, std::vector<RowKey> keys, Connection& connection);

} // namespace quelvarn
