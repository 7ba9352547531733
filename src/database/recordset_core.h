#pragma once

#include "database/recordset.h"
#include "database/recordset_edit.h"
#include "database/row_filter.h"

namespace quelvarn {

// What a recordset holds.
struct Recordset::Core : RecordsetEdit
{
    RowFilter filter;
    std::size_t small = 2048; // Results up to this many rows are read whole.
};

} // namespace quelvarn
