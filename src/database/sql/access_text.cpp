#include "database/sql/access_text.h"

#include "base/text.h"
#include "database/sql/comparison_signs.h"

#include <fmt/format.h>

namespace quelvarn::sql {
namespace {

template <class List, class Text> std::string connected(const List& list, std::string_view between, Text text)
{
    std::vector<std::string> parts;
    for (const auto& entry : list)
        parts.push_back(text(entry));
    return join(parts, between);
}

struct Literal
{
    std::string operator()(std::monostate) const { return "Null"; }
    std::string operator()(std::int64_t number) const { return fmt::format("{}", number); }
    std::string operator()(double number) const { return fmt::format("{}", number); }
    std::string operator()(const std::string& text) const { return "'" + replaceAll(text, "'", "''") + "'"; }
    std::string operator()(DateTime time) const
    {
        const CalendarTime k = time.calendar();
        return fmt::format("#{:02}/{:02}/{:04} {:02}:{:02}:{:02}#", k.month, k.day, k.year, k.hour, k.minute, k.second);
    }
};

struct ConditionText
{
    std::string operator()(const Condition& b) const
    {
        const auto* pattern = std::get_if<std::string>(&b.value);
        if (pattern && (b.comparison == Comparison::Like || b.comparison == Comparison::NotLike))
            return fmt::format("{} {} {}", accessName(b.column), characterOf(b.comparison),
                               accessLiteral(asSqlPattern(*pattern, b.wildcards)));
        return fmt::format("{} {} {}", accessName(b.column), characterOf(b.comparison), accessLiteral(b.value));
    }
    std::string operator()(const IsNull& i) const
    {
        return accessName(i.column) + (i.negated ? " Is Not Null" : " Is Null");
    }
    std::string operator()(const And& both) const { return bracketed(both.parts, " And "); }
    std::string operator()(const Or& either) const { return bracketed(either.parts, " Or "); }
    std::string operator()(const Not& negate) const { return "Not " + std::visit(*this, negate.part->content); }

    std::string bracketed(const std::vector<ExpressionPointer>& parts, std::string_view word) const
    {
        return "(" + connected(parts, word, [&](const auto& part) { return std::visit(*this, part->content); }) + ")";
    }
};

std::string where(const ExpressionPointer& condition)
{
    return condition ? " Where " + asAccessText(*condition) : "";
}

struct StatementText
{
    std::string operator()(const Select& select) const
    {
        const std::string columns = select.count             ? "Count(*)"
                                    : select.columns.empty() ? "*"
                                                             : connected(select.columns, ", ", accessName);
        const std::string sorted = connected(
            select.orderBy, ", ", [](const Sort& s) { return accessName(s.column) + (s.descending ? " Desc" : ""); });
        return fmt::format("Select {}{} From {}{}{}{}", select.distinct ? "Distinct " : "", columns,
                           accessName(select.table), where(select.where), sorted.empty() ? "" : " Order By ", sorted);
    }
    std::string operator()(const Insert& insert) const
    {
        return fmt::format("Insert Into {} ({}) Values ({})", accessName(insert.table),
                           connected(insert.values, ", ", [](const Assignment& z) { return accessName(z.column); }),
                           connected(insert.values, ", ", [](const Assignment& z) { return accessLiteral(z.value); }));
    }
    std::string operator()(const Update& update) const
    {
        const std::string values = connected(update.values, ", ", [](const Assignment& z) {
            return fmt::format("{} = {}", accessName(z.column), accessLiteral(z.value));
        });
        return fmt::format("Update {} Set {}{}", accessName(update.table), values, where(update.where));
    }
    std::string operator()(const Delete& remove) const
    {
        return fmt::format("Delete From {}{}", accessName(remove.table), where(remove.where));
    }
};

} // namespace

std::string accessName(std::string_view name)
{
    return fmt::format("[{}]", name);
}

std::string accessLiteral(const Value& value)
{
    return std::visit(Literal{}, value);
}

std::string asAccessText(const Statement& statement)
{
    return std::visit(StatementText{}, statement);
}

std::string asAccessText(const Expression& condition)
{
    return std::visit(ConditionText{}, condition.content);
}

} // namespace quelvarn::sql
