#pragma once

#include "database/engine.h"
#include "database/schema.h"
#include "database/sql/ast.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::sql {

constexpr int FAULT_MISSING_FIELD = -2147217904;
constexpr int FAULT_DATA_TYPE = -2147217913;

// A statement in an engine's own SQL, with what stands for its placeholders, in their order.
struct Rendered
{
    std::string text;
    std::vector<Value> parameter;
    // What a row of the result holds, as stored. The row key, when asked for, stands in front and is not among them.
    std::vector<ColumnInfo> columns;
    // Where rows have no key: the other columns of the table, which stand behind those asked for.
    std::vector<ColumnInfo> rest;
    // False: the text holds neither the order nor the limit asked for, and the caller sees to both.
    bool sortedSelf = true;
};

// Turns trees into an engine's SQL: values become parameters, names those of the stored table. A name in any case
// will do; one that the table lacks throws RuntimeError. The table is the one that the tree names.
//
// A literal is first turned into the type of its column: a text that reads as a number or date is compared as one, a
// number with a text column by the number's text. Where that cannot be, the condition is Null: it never matches, nor
// does its opposite. In what is written, a value that does not fit throws RuntimeError.
class Dialect
{
public:
    virtual ~Dialect() = default;

    Rendered select(const Select& statement, const TableSchema& table, WithKey key, std::size_t limit = 0) const;
    // INSERT, UPDATE or DELETE.
    Rendered change(const Statement& statement, const TableSchema& table) const;

    // By row key.
    Rendered insert(const TableSchema& table, std::span<const Assignment> values) const;
    Rendered update(const TableSchema& table, RowKey row, std::span<const Assignment> values) const;
    Rendered remove(const TableSchema& table, RowKey row) const;

    // By what the row holds, for tables without a key: the columns of the image are compared as exactly as the engine
    // can. Doubles and dates may be off by what a driver loses on the way, dates by a second at most.
    using RowImage = std::span<const Assignment>;
    Rendered readRow(const TableSchema& table, RowImage picture) const;
    Rendered countRow(const TableSchema& table, RowImage picture) const;
    Rendered updateRow(const TableSchema& table, RowImage picture, std::span<const Assignment> values) const;
    Rendered removeRow(const TableSchema& table, RowImage picture) const;

    static std::string identifier(std::string_view name); // "name"

protected:
    // A text against a pattern: what stands in front of and behind the placeholder of the pattern.
    struct PatternComparison
    {
        std::string before;
        std::string pattern;
        std::string behind;
    };

    virtual std::string name(std::string_view name) const { return identifier(name); }
    virtual std::string_view keyColumn() const = 0; // "" when rows have none.
    // The placeholder of this number (from 1), where this value meets a column of this type.
    virtual std::string placeholder(std::size_t number, const Value& value, FieldType type) const = 0;
    // What stands in the statement itself instead of a placeholder.
    virtual std::optional<std::string> asLiteral(const Value&) const { return std::nullopt; }
    // What the texts of a column are compared and sorted by, and a text on the other side of the comparison.
    virtual std::string comparisonExpression(const std::string& column) const = 0;
    virtual std::string comparisonText(const std::string& text) const = 0;
    // The pattern has the wildcards of statements.
    virtual PatternComparison like(const std::string& expression, const std::string& pattern) const = 0;
    // False: patterns reach the engine alone, which finds its own way to an index.
    virtual bool narrowsPattern() const { return true; }
    // A text equal to another where each byte counts.
    virtual std::string exactlyEqual(const std::string& expression, const std::string& text) const = 0;
    // A column of numbers or dates as their German text.
    virtual std::string asText(const std::string& column, FieldType type) const = 0;
    virtual Value dateValue(DateTime time) const = 0;
    virtual std::string sorted(const std::string& expression, bool descending) const = 0; // Null before everything.
    virtual bool sortedDistinct() const = 0;
    // Of texts that are equal to the program, a DISTINCT shows the one that was stored first. True where DISTINCT
    // would meet the rows in another order than that; the rows are grouped then.
    virtual bool groupedDistinct(const Select& statement) const = 0;
    virtual std::string_view never() const = 0; // A condition that is Null.
    // A limit of rows stands in front of the columns or at the end.
    virtual std::string limitBefore(std::size_t) const { return {}; }
    virtual std::string limitBehind(std::size_t limit) const;

private:
    friend class Writer;
};

} // namespace quelvarn::sql
