#include "database/sql/conditions.h"

#include "base/text.h"
#include "database/sql/parser.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <memory>

namespace quelvarn::sql {
namespace {

constexpr std::size_t CHUNK = 100;

template <class Node> ExpressionPointer expression(Node node)
{
    auto made = std::make_unique<Expression>();
    made->content = std::move(node);
    return made;
}

template <class Node> ExpressionPointer joined(std::vector<ExpressionPointer> parts)
{
    if (parts.size() == 1)
        return std::move(parts.front());
    return expression(Node{std::move(parts)});
}

} // namespace

ExpressionPointer compare(std::string_view column, Comparison comparison, std::string_view value)
{
    return expression(Condition{std::string(column), comparison, std::string(value)});
}

ExpressionPointer like(std::string_view column, std::string_view pattern, Wildcards wildcards)
{
    return expression(Condition{std::string(column), Comparison::Like, std::string(pattern), wildcards});
}

ExpressionPointer equal(std::string_view column, std::string_view value)
{
    return compare(column, Comparison::Equal, value);
}

ExpressionPointer equal(std::string_view column, std::int64_t value)
{
    return expression(Condition{std::string(column), Comparison::Equal, value});
}

ExpressionPointer all(std::vector<ExpressionPointer> parts)
{
    std::erase(parts, nullptr);
    return parts.empty() ? nullptr : joined<And>(std::move(parts));
}

ExpressionPointer any(std::vector<ExpressionPointer> parts)
{
    assert(!parts.empty() && std::find(parts.begin(), parts.end(), nullptr) == parts.end());
    return joined<Or>(std::move(parts));
}

std::vector<ExpressionPointer> chunks(std::vector<ExpressionPointer> parts)
{
    std::vector<ExpressionPointer> conditions;
    for (auto first = parts.begin(); first != parts.end();) {
        const auto behind = first + std::min<std::ptrdiff_t>(CHUNK, parts.end() - first);
        conditions.push_back(any({std::make_move_iterator(first), std::make_move_iterator(behind)}));
        first = behind;
    }
    return conditions;
}

ExpressionPointer statusScope(std::string_view WhereStatus)
{
    // The table is not asked.
    Statement statement = parseStatement("SELECT Status FROM Tabelle" + std::string(WhereStatus));
    return std::move(std::get<Select>(statement).where);
}

Query Query::columns(std::initializer_list<std::string_view> names) &&
{
    select_.columns.assign(names.begin(), names.end());
    return std::move(*this);
}

Query Query::distinct() &&
{
    select_.distinct = true;
    return std::move(*this);
}

Query Query::where(ExpressionPointer condition) &&
{
    select_.where = std::move(condition);
    return std::move(*this);
}

Query Query::sortedBy(std::string_view column) &&
{
    select_.orderBy.push_back({std::string(column), false});
    return std::move(*this);
}

Query Query::sortedDownBy(std::string_view column) &&
{
    select_.orderBy.push_back({std::string(column), true});
    return std::move(*this);
}

std::string quoted(std::string_view value)
{
    return "'" + replaceAll(value, "'", "''") + "'";
}

} // namespace quelvarn::sql
