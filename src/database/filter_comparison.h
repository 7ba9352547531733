#pragma once

#include "database/filter_evaluator.h"

namespace quelvarn {

// `column op literal` over one column.
std::unique_ptr<Selection> buildComparison(const Column& column, const sql::Condition& condition);
std::unique_ptr<Selection> buildNullCheck(const Column& column, bool negated);
// The comparison that is met by the values, Null apart, which do not meet this one.
sql::Comparison opposite(sql::Comparison comparison);

} // namespace quelvarn
