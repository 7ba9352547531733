#pragma once

#include "database/column.h"
#include "database/sql/ast.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A condition over the columns of a recordset, ready to narrow lists of rows.
class Selection
{
public:
    virtual ~Selection() = default;
    // Removes the rows that do not meet the condition; the others stay in their order. A comparison with Null is
    // never met, nor is its opposite.
    virtual void keep(std::vector<RowNumber>& rows) = 0;
    // True when no row at all meets the condition, where that can be told without looking at the rows.
    virtual bool nowhere() { return false; }
};

using ColumnSearch = std::function<const Column&(std::string_view name)>;

// The columns must outlive the result and not change. A literal is taken as the type of its column; where that
// cannot be, the comparison is never met, nor is its opposite.
std::unique_ptr<Selection> buildSelection(const sql::Expression& expression, const ColumnSearch& columns);

// Every column that the condition names, each once.
std::vector<std::string> namedColumns(const sql::Expression& expression);

} // namespace quelvarn
