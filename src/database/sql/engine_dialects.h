#pragma once

#include "database/sql/renderer.h"

namespace quelvarn::sql {

// Texts stand in columns of a collation that is blind to case and trailing blanks, dates as ISO texts. Patterns are
// matched by qv_like(pattern, text). The row key is rowid.
const Dialect& sqliteDialect();
// Texts are compared by qv_key(text), whose results order byte by byte, and matched by qv_fold(text). The row key is
// qv_id. DISTINCT heeds case: the caller finishes it, then sorts and limits.
const Dialect& postgresDialect();

// The same databases behind an ODBC driver, whose placeholders are not numbered. Tables have no qv_id there.
const Dialect& sqliteOdbcDialect();
const Dialect& postgresOdbcDialect();

} // namespace quelvarn::sql
