#pragma once

#include "database/sql/ast.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quelvarn {

// A row of a recordset, whatever filter or order is on it. Valid until the recordset is closed.
using Bookmark = std::uint32_t;

// Long work of a recordset tells its progress here (done, total); false gives up, and the recordset stays as
// it was.
using Progress = std::function<bool(std::size_t, std::size_t)>;

using SharedCondition = std::shared_ptr<const sql::Expression>;

// What a recordset is narrowed to: rows that meet every condition. The text stands for it where it is shown or
// compared.
struct RowFilter
{
    std::string text;
    std::vector<SharedCondition> conditions = {};
};

} // namespace quelvarn
