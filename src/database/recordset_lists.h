#pragma once

#include "database/recordset.h"

namespace quelvarn {

// What occurs in the rows of the opening. Filter, order and place stay as they are.

// The rows that meet a condition as it stands behind WHERE (month first), "" for all. Nothing when given up.
std::optional<std::vector<Bookmark>> choose(Recordset& recordset, std::string_view text, const Progress& progress = {});
std::optional<std::vector<Bookmark>> choose(Recordset& recordset, const RowFilter& filter,
                                            const Progress& progress = {});
// The distinct texts of a column in these rows, sorted; no Null, and only those that `counts` accepts. Of texts that
// differ in case or trailing blanks alone, the spelling stored first, without such blanks where there is one.
std::vector<std::string> distinctTexts(Recordset& recordset, std::string_view field, std::span<const Bookmark> rows,
                                       const std::function<bool(std::string_view)>& counts = {});
// The same for a column of numbers.
std::vector<double> distinctNumbers(Recordset& recordset, std::string_view field, std::span<const Bookmark> rows);

} // namespace quelvarn
