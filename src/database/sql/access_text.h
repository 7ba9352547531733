#pragma once

#include "database/sql/ast.h"

#include <string>

namespace quelvarn::sql {

// A tree as text of the program's own dialect, as Access itself takes it: names in brackets, apostrophes doubled,
// the month first in dates. Reading it gives the same tree.
std::string alsAccessText(const Anweisung& anweisung);
std::string alsAccessText(const Ausdruck& bedingung);

} // namespace quelvarn::sql
