#pragma once

#include "database/sql/ast.h"

#include <string_view>

namespace quelvarn {

// Conditions as trees: a value with an apostrophe stays a value.
sql::AusdruckZeiger vergleich(std::string_view spalte, sql::Vergleich vergleich, std::string_view wert);
// Both; one of them where the other is nothing.
sql::AusdruckZeiger beide(sql::AusdruckZeiger links, sql::AusdruckZeiger rechts);
// Any of these.
sql::AusdruckZeiger eines(sql::Oder oder);

// The condition of WhereStatus (" WHERE (...)", or "" for none) on a table; nothing where there is none.
sql::AusdruckZeiger statusbereich(std::string_view tabelle, std::string_view WhereStatus);

} // namespace quelvarn
