#pragma once

#include "database/sql/renderer.h"

namespace quelvarn::sql {

// Access itself: names in brackets, texts are bound, numbers and dates stand in the statement. Equality, order,
// DISTINCT and LIKE are left to it; it sorts Null first. It has no row key.
const Dialect& accessDialect();

} // namespace quelvarn::sql
