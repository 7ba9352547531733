#pragma once

#include "database/sql/ast.h"

#include <string_view>

namespace quelvarn::sql {

// How the day stands in a #..# literal.
enum class DateOrder {
    MonthFirst, // SQL: #mm/dd/yy#
    DayFirst,   // recordset filter: #dd/mm/yy#
};

// Reads exactly one SELECT, INSERT, UPDATE or DELETE. Whatever stands behind it is refused, so a pasted
// value can never add a second statement. Throws RuntimeError with a German description.
//
// Values stand in statements as they are, so an apostrophe inside a literal is part of it when what follows cannot
// come behind a literal at this place: AND, OR, ORDER BY, a bracket or comma that is awaited, the end. A doubled
// apostrophe is one apostrophe, and a value whose apostrophes are all doubled is always read as it was meant. A lone
// apostrophe behind the table at the very end of a statement is passed over.
Statement parseStatement(std::string_view text);

// A recordset filter or Find criterion: the condition alone. An empty text gives null: no filter. `wildcards` tells how
// its patterns are meant.
ExpressionPointer parseCondition(std::string_view text, DateOrder sequence = DateOrder::DayFirst,
                                 Wildcards wildcards = Wildcards::Sql);

} // namespace quelvarn::sql
