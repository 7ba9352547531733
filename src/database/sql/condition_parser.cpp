#include "database/sql/condition_parser.h"

#include "database/sql/comparison_signs.h"

#include <utility>

namespace quelvarn::sql {
namespace {

// Brackets and NOTs within one another. Keeps a hostile text from using up the stack.
constexpr int GREATEST_DEPTH = 200;

template <class T> ExpressionPointer expression(T content)
{
    return std::make_unique<Expression>(Expression{std::move(content)});
}

ExpressionPointer compare(const std::string& column, Comparison comparison, Value value)
{
    return expression(Condition{column, comparison, std::move(value)});
}

template <class T> ExpressionPointer connected(T connection)
{
    if (connection.parts.size() == 1)
        return std::move(connection.parts.front());
    return expression(std::move(connection));
}

} // namespace

ExpressionPointer ConditionParser::read()
{
    return either();
}

ExpressionPointer ConditionParser::either()
{
    Or connection;
    do {
        connection.parts.push_back(both());
    } while (reader_.takeWord("OR"));
    return connected(std::move(connection));
}

ExpressionPointer ConditionParser::both()
{
    And connection;
    do {
        connection.parts.push_back(negate());
    } while (reader_.takeWord("AND"));
    return connected(std::move(connection));
}

ExpressionPointer ConditionParser::negate()
{
    if (++depth_ > GREATEST_DEPTH)
        reader_.syntaxFault();
    ExpressionPointer read;
    if (reader_.takeWord("NOT"))
        read = expression(Not{negate()});
    else
        read = reader_.preview() == '(' ? bracket() : comparison();
    --depth_;
    return read;
}

ExpressionPointer ConditionParser::bracket()
{
    reader_.requireCharacter("(");
    ++brackets_;
    ExpressionPointer content = either();
    --brackets_;
    reader_.requireCharacter(")");
    return content;
}

ExpressionPointer ConditionParser::comparison()
{
    ColumnName name = reader_.requireColumn();
    if (!name.table.empty())
        tables_.push_back(std::move(name.table));
    for (const ComparisonSign& character : COMPARISON_SIGN) {
        if (reader_.takeCharacter(character.text))
            return compare(name.column, character.comparison, literal());
    }
    return comparisonWithWord(name.column);
}

ExpressionPointer ConditionParser::comparisonWithWord(const std::string& column)
{
    if (reader_.takeWord("IS")) {
        const bool negated = reader_.takeWord("NOT");
        reader_.requireWord("NULL");
        return expression(IsNull{column, negated});
    }
    const bool negated = reader_.takeWord("NOT");
    if (reader_.takeWord("LIKE"))
        return pattern(column, negated ? Comparison::NotLike : Comparison::Like);
    ExpressionPointer read;
    if (reader_.takeWord("IN"))
        read = list(column);
    else if (reader_.takeWord("BETWEEN"))
        read = section(column);
    else
        reader_.syntaxFault();
    return negated ? expression(Not{std::move(read)}) : std::move(read);
}

ExpressionPointer ConditionParser::pattern(const std::string& column, Comparison comparison)
{
    const std::size_t begin = reader_.position();
    Value value = literal();
    if (!std::holds_alternative<std::string>(value))
        reader_.syntaxFault(begin);
    return expression(Condition{column, comparison, std::move(value), wildcards_});
}

ExpressionPointer ConditionParser::list(const std::string& column)
{
    Or values;
    reader_.requireCharacter("(");
    do {
        values.parts.push_back(compare(column, Comparison::Equal, literals_.read(Place::List, brackets_)));
    } while (reader_.takeCharacter(","));
    reader_.requireCharacter(")");
    return connected(std::move(values));
}

ExpressionPointer ConditionParser::section(const std::string& column)
{
    And bounds;
    bounds.parts.push_back(compare(column, Comparison::GreaterEqual, literals_.read(Place::FirstLimit, brackets_)));
    reader_.requireWord("AND");
    bounds.parts.push_back(compare(column, Comparison::LessEqual, literal()));
    return expression(std::move(bounds));
}

} // namespace quelvarn::sql
