#pragma once

#include "database/engine.h"
#include "tools/result_buffer.h"

#include <cstdint>

namespace quelvarn::tools {

enum class OutputForm {
    Tabulator, // A head line, then a row a line; tabs and line ends inside a cell as \t, \n, \r, Null as nothing.
    Json,      // An array a line: the names of the columns, then the rows.
};

// Takes every row from the database. The number of rows.
std::uint64_t printRows(RowReader& rows, OutputForm form, ResultBuffer& out);

} // namespace quelvarn::tools
