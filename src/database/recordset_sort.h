#pragma once

#include "database/column.h"

#include <functional>
#include <string_view>
#include <vector>

namespace quelvarn {

struct SortField
{
    std::size_t field;
    bool descending = false;
};

// "Feld [ASC|DESC], ..."; a name may stand in square brackets. `fieldOf` gives the number of a field.
std::vector<SortField> readSort(std::string_view expression,
                                const std::function<std::size_t(std::string_view)>& fieldOf);

// Puts the rows in the order of these fields, Null before everything; equal ones stay in their order.
void sort(std::vector<RowNumber>& rows, const std::vector<SortField>& fields,
          const std::function<const Column&(std::size_t)>& column);

} // namespace quelvarn
