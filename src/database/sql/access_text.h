#pragma once

#include "database/sql/ast.h"

#include <string>
#include <string_view>

namespace quelvarn::sql {

// A tree as text of the program's own dialect, as Access itself takes it: names in brackets, apostrophes doubled,
// the month first in dates. Reading it gives the same tree.
std::string asAccessText(const Statement& statement);
std::string asAccessText(const Expression& condition);
std::string accessName(std::string_view name);
std::string accessLiteral(const Value& value);

} // namespace quelvarn::sql
