#pragma once

#include "database/sql/ast.h"
#include "database/sql/literal.h"
#include "database/sql/reader.h"

#include <vector>

namespace quelvarn::sql {

// Reads a condition: OR binds least, then AND, then NOT.
class ConditionParser
{
public:
    // `position` is FilterCondition or Condition.
    ConditionParser(Reader& reader, LiteralReader& literals, Place position, Wildcards wildcards = Wildcards::Sql)
        : reader_(reader), literals_(literals), position_(position), wildcards_(wildcards)
    {}

    ExpressionPointer read();
    // The tables that stood in front of columns.
    const std::vector<std::string>& tables() const { return tables_; }

private:
    ExpressionPointer either();
    ExpressionPointer both();
    ExpressionPointer negate();
    ExpressionPointer bracket();
    ExpressionPointer comparison();
    ExpressionPointer comparisonWithWord(const std::string& column);
    ExpressionPointer list(const std::string& column);
    ExpressionPointer section(const std::string& column);
    ExpressionPointer pattern(const std::string& column, Comparison comparison);
    Value literal() { return literals_.read(position_, brackets_); }

    Reader& reader_;
    LiteralReader& literals_;
    Place position_;
    Wildcards wildcards_;
    int brackets_ = 0;
    int depth_ = 0;
    std::vector<std::string> tables_;
};

} // namespace quelvarn::sql
