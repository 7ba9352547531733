#pragma once

#include "database/sql/ast.h"

#include <string>
#include <string_view>

namespace quelvarn::sql {

// A tree as text of the program's own dialect, as Access itself takes it: names in brackets, apostrophes doubled,
// the month first in dates. Reading it gives the same tree.
std::string alsAccessText(const Anweisung& anweisung);
std::string alsAccessText(const Ausdruck& bedingung);
std::string accessName(std::string_view name);
std::string accessLiteral(const Value& wert);

} // namespace quelvarn::sql
