#pragma once

#include "database/sql/ast.h"

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The one place where statements with values of persons and documents are made. They are trees: whatever a value holds,
// it stays a value. Texts of statements are taken as literals alone (FixedText).
namespace quelvarn::sql {

ExpressionPointer compare(std::string_view column, Comparison comparison, std::string_view value);
ExpressionPointer like(std::string_view column, std::string_view pattern, Wildcards wildcards);
ExpressionPointer equal(std::string_view column, std::string_view value);
ExpressionPointer equal(std::string_view column, std::int64_t value);

// Each of these. A null pointer is no condition; null when none of them is one.
ExpressionPointer all(std::vector<ExpressionPointer> parts);
template <std::same_as<ExpressionPointer>... Parts> ExpressionPointer all(Parts... parts)
{
    std::vector<ExpressionPointer> list;
    (list.push_back(std::move(parts)), ...);
    return all(std::move(list));
}

// One of these; there must be one at least.
ExpressionPointer any(std::vector<ExpressionPointer> parts);
// The same in several conditions: a longer one than of a hundred parts is more than some engines take.
std::vector<ExpressionPointer> chunks(std::vector<ExpressionPointer> parts);

// The condition of WhereStatus (" WHERE (...)", or "" for none); null where there is none. Throws RuntimeError where
// it names no status.
ExpressionPointer statusScope(std::string_view WhereStatus);

// Makes a SELECT: Query("Ini").columns({"Feld4"}).where(equal("Feld1", user)).
class Query
{
public:
    explicit Query(std::string_view table) { select_.table = table; }

    Query columns(std::initializer_list<std::string_view> names) &&;
    Query distinct() &&;
    Query where(ExpressionPointer condition) &&;
    Query sortedBy(std::string_view column) &&;
    Query sortedDownBy(std::string_view column) &&;

    operator Select() && { return std::move(select_); } // NOLINT(google-explicit-constructor): it is one.

private:
    Select select_;
};

// For a filter or criterion of a Recordset, which is a text: the value between apostrophes, its own ones doubled.
std::string quoted(std::string_view value);

} // namespace quelvarn::sql
