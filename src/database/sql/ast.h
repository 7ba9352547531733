#pragma once

#include "base/like_pattern.h"
#include "database/value.h"

#include <memory>
#include <string>
#include <variant>
#include <vector>

// A statement of the program's SQL dialect (that of Access), or a recordset filter, as a tree.
namespace quelvarn::sql {

enum class Comparison { Equal, Unequal, Less, LessEqual, Greater, GreaterEqual, Like, NotLike };

struct Expression;
using ExpressionPointer = std::unique_ptr<Expression>;

// column op literal. Literals: text, number, date; Null only behind Is [Not] Null.
struct Condition
{
    std::string column;
    Comparison comparison = Comparison::Equal;
    Value value;
    Wildcards wildcards = Wildcards::Sql; // Of a LIKE: how its text is read.
};
struct IsNull
{
    std::string column;
    bool negated = false;
};
struct And
{
    std::vector<ExpressionPointer> parts;
};
struct Or
{
    std::vector<ExpressionPointer> parts;
};
struct Not
{
    ExpressionPointer part;
};
struct Expression
{
    std::variant<Condition, IsNull, And, Or, Not> content;
};

struct Sort
{
    std::string column;
    bool descending = false;
};

struct Select
{
    bool distinct = false;
    bool count = false;               // Select Count(*)
    std::vector<std::string> columns; // Empty: all (*).
    std::string table;
    ExpressionPointer where; // May be null.
    std::vector<Sort> orderBy;
};
struct Assignment
{
    std::string column;
    Value value;
};
struct Insert
{
    std::string table;
    std::vector<Assignment> values;
};
struct Update
{
    std::string table;
    std::vector<Assignment> values;
    ExpressionPointer where;
};
struct Delete
{
    std::string table;
    ExpressionPointer where;
};
using Statement = std::variant<Select, Insert, Update, Delete>;

} // namespace quelvarn::sql
