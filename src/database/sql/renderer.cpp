#include "database/sql/renderer.h"

#include "base/collation.h"
#include "base/like_pattern.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/sql/column_value.h"
#include "database/sql/comparison_signs.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <fmt/format.h>
#include <limits>

namespace quelvarn::sql {
// Writes one statement, counting the placeholders as it goes.
class Writer
{
public:
    Writer(const Dialect& dialect, const TableSchema& table) : dialect_(dialect), table_(table) {}

    const ColumnInfo& column(std::string_view name) const
    {
        auto found = std::ranges::find(table_.columns, name, &ColumnInfo::name); // Nearly always spelled so.
        if (found == table_.columns.end())
            found = std::ranges::find_if(table_.columns,
                                         [&](const ColumnInfo& column) { return equalText(column.name, name); });
        if (found == table_.columns.end())
            throw RuntimeError(FAULT_MISSING_FIELD, "Datenbank",
                               fmt::format("Feld '{}' ist in der Tabelle '{}' nicht vorhanden.", name, table_.name));
        return *found;
    }

    std::string name(const ColumnInfo& column) const { return dialect_.name(column.name); }
    std::string table() const { return dialect_.name(table_.name); }

    std::string parameter(Value value, FieldType type)
    {
        if (auto literal = dialect_.asLiteral(value))
            return *std::move(literal);
        if (const auto* time = std::get_if<DateTime>(&value))
            value = dialect_.dateValue(*time);
        result_.parameter.push_back(std::move(value));
        return dialect_.placeholder(result_.parameter.size(), result_.parameter.back(), type);
    }

    // Names of the columns of the result; all of them when none is named.
    std::string selection(std::span<const std::string> names)
    {
        if (names.empty())
            result_.columns = table_.columns;
        for (const std::string& name : names)
            result_.columns.push_back(column(name));
        std::vector<std::string> texts;
        for (const ColumnInfo& column : result_.columns)
            texts.push_back(name(column));
        return join(texts, ", ");
    }

    std::string rest()
    {
        std::string text;
        for (const ColumnInfo& other : table_.columns) {
            if (std::ranges::find(result_.columns, other) != result_.columns.end())
                continue;
            result_.rest.push_back(other);
            text += ", " + name(other);
        }
        return text;
    }

    std::string where(const ExpressionPointer& condition)
    {
        return condition ? " WHERE " + std::visit(*this, condition->content) : "";
    }

    std::string row(RowKey key)
    {
        return fmt::format(" WHERE {} = {}", dialect_.keyColumn(), parameter(key, FieldType::Integer));
    }

    std::string row(Dialect::RowImage picture)
    {
        std::vector<std::string> texts;
        for (const Assignment& cell : picture)
            texts.push_back(exactly(column(cell.column), cell.value));
        return " WHERE " + join(texts, " AND ");
    }

    std::string sort(const std::vector<Sort>& sorts) const
    {
        std::vector<std::string> texts;
        for (const Sort& sort : sorts) {
            const ColumnInfo& intended = column(sort.column);
            const std::string expression = name(intended);
            texts.push_back(dialect_.sorted(intended.type == FieldType::Text ? dialect_.comparisonExpression(expression)
                                                                             : expression,
                                            sort.descending));
        }
        return texts.empty() ? "" : " ORDER BY " + join(texts, ", ");
    }

    std::string value(const Assignment& assignment)
    {
        const FieldType type = column(assignment.column).type;
        return parameter(storedValue(assignment.value, type), type);
    }

    std::string operator()(const Condition& condition)
    {
        const ColumnInfo& intended = column(condition.column);
        if (condition.comparison == Comparison::Like)
            return like(intended, std::get<std::string>(condition.value), condition.wildcards);
        if (condition.comparison == Comparison::NotLike)
            return "NOT (" + pattern(intended, std::get<std::string>(condition.value), condition.wildcards) + ")";

        const auto literal = comparisonValue(condition.value, intended.type);
        if (!literal)
            return std::string(dialect_.never());
        if (intended.type == FieldType::Text)
            return textComparison(name(intended), characterOf(condition.comparison), std::get<std::string>(*literal));
        return fmt::format("{} {} {}", name(intended), characterOf(condition.comparison),
                           parameter(*literal, intended.type));
    }

    std::string operator()(const IsNull& isNull) const
    {
        return name(column(isNull.column)) + (isNull.negated ? " IS NOT NULL" : " IS NULL");
    }

    std::string operator()(const And& both) { return connected(both.parts, " AND "); }
    std::string operator()(const Or& either) { return connected(either.parts, " OR "); }
    std::string operator()(const Not& negate) { return "NOT (" + std::visit(*this, negate.part->content) + ")"; }

    Rendered finish(std::string text)
    {
        result_.text = std::move(text);
        return std::move(result_);
    }
    Rendered& result() { return result_; }

private:
    std::string exactly(const ColumnInfo& column, const Value& value)
    {
        if (isNull(value))
            return name(column) + " IS NULL";
        if (const auto* text = std::get_if<std::string>(&value); text && column.type == FieldType::Text)
            return dialect_.exactlyEqual(name(column), parameter(*text, FieldType::Text));
        if (const auto* number = std::get_if<double>(&value)) {
            constexpr double greatest = std::numeric_limits<double>::max();
            const double slack = std::abs(*number) * 1e-14;
            return section(column, std::max(*number - slack, -greatest), std::min(*number + slack, greatest));
        }
        if (const auto* time = std::get_if<DateTime>(&value)) {
            static const DateTime first = DateTime::from({100, 1, 1});
            static const DateTime last = DateTime::from({9999, 12, 31, 23, 59, 59});
            return section(column, std::max(time->plusSeconds(-1), first), std::min(time->plusSeconds(1), last));
        }
        return fmt::format("{} = {}", name(column), parameter(value, column.type));
    }

    std::string section(const ColumnInfo& column, const Value& from, const Value& until)
    {
        const std::string below = parameter(from, column.type);
        return fmt::format("({} BETWEEN {} AND {})", name(column), below, parameter(until, column.type));
    }

    std::string connected(const std::vector<ExpressionPointer>& parts, std::string_view word)
    {
        std::vector<std::string> texts;
        for (const ExpressionPointer& part : parts)
            texts.push_back(std::visit(*this, part->content));
        return "(" + join(texts, word) + ")";
    }

    std::string textComparison(const std::string& name, std::string_view character, const std::string& text)
    {
        return fmt::format("{} {} {}", dialect_.comparisonExpression(name), character,
                           parameter(dialect_.comparisonText(text), FieldType::Text));
    }

    // What a pattern begins with narrows the rows by an index, before each one is looked at.
    std::string like(const ColumnInfo& column, const std::string& text, Wildcards wildcards)
    {
        const LikePattern read(text, wildcards);
        const std::string begin =
            read.shape() == LikePattern::Shape::Exact || read.shape() == LikePattern::Shape::Prefix ? read.literal()
                                                                                                    : std::string();
        if (!dialect_.narrowsPattern() || column.type != FieldType::Text || trimRightBlanks(begin).empty())
            return pattern(column, text, wildcards);
        std::string narrower;
        if (read.shape() == LikePattern::Shape::Exact) {
            narrower = textComparison(name(column), "=", begin);
        } else {
            narrower = textComparison(name(column), ">=", begin);
            std::string behind = begin;
            appendUtf8(behind, 0x10FFFF);
            narrower += " AND " + textComparison(name(column), "<", behind);
        }
        return "(" + narrower + " AND " + pattern(column, text, wildcards) + ")";
    }

    std::string pattern(const ColumnInfo& column, const std::string& text, Wildcards wildcards)
    {
        std::string expression = name(column);
        if (column.type != FieldType::Text)
            expression = dialect_.asText(expression, column.type);
        // Patterns of blanks alone, which every list of choices has, need no matching.
        if (dialect_.narrowsPattern() && trimRightBlanks(text).empty())
            return dialect_.exactlyEqual(expression, parameter(text, FieldType::Text));
        Dialect::PatternComparison comparison = dialect_.like(expression, asSqlPattern(text, wildcards));
        return comparison.before + parameter(std::move(comparison.pattern), FieldType::Text) + comparison.behind;
    }

    const Dialect& dialect_;
    const TableSchema& table_;
    Rendered result_;
};

namespace {

std::string assignments(Writer& writer, std::span<const Assignment> values)
{
    std::vector<std::string> texts;
    for (const Assignment& assignment : values)
        texts.push_back(
            fmt::format("{} = {}", writer.name(writer.column(assignment.column)), writer.value(assignment)));
    return join(texts, ", ");
}

// The rows of a DISTINCT have only the columns that were asked for.
void checkSort(const Select& statement, const std::vector<ColumnInfo>& columns)
{
    for (const Sort& sort : statement.orderBy) {
        const auto equal = [&](const ColumnInfo& column) { return equalText(column.name, sort.column); };
        if (statement.distinct && std::ranges::none_of(columns, equal))
            throw RuntimeError(
                FAULT_MISSING_FIELD, "Datenbank",
                fmt::format("Nach Feld '{}' kann nicht sortiert werden: Es steht nicht hinter DISTINCT.", sort.column));
    }
}

} // namespace

std::string Dialect::identifier(std::string_view name)
{
    return "\"" + replaceAll(name, "\"", "\"\"") + "\"";
}

std::string Dialect::limitBehind(std::size_t limit) const
{
    return fmt::format(" LIMIT {}", limit);
}

Rendered Dialect::select(const Select& statement, const TableSchema& table, WithKey key, std::size_t limit) const
{
    assert(key == WithKey::No || !(statement.distinct || statement.count));
    Writer writer(*this, table);
    const bool grouped = statement.distinct && groupedDistinct(statement);
    std::string text = "SELECT ";
    std::string selection;
    if (statement.count) {
        writer.result().columns = {{"Anzahl", FieldType::Integer}};
        text += "COUNT(*)";
    } else {
        selection = writer.selection(statement.columns);
        text += statement.distinct && !grouped ? "DISTINCT " : "";
        text += limit > 0 ? limitBefore(limit) : "";
        const bool withRest = key == WithKey::Yes && keyColumn().empty();
        text += key == WithKey::Yes && !withRest ? std::string(keyColumn()) + ", " : "";
        text += selection + (withRest ? writer.rest() : "");
        checkSort(statement, writer.result().columns);
    }
    text += " FROM " + writer.table() + writer.where(statement.where);
    text += grouped ? fmt::format(" GROUP BY {} ORDER BY MIN({})", selection, keyColumn()) : "";
    const bool here = !statement.distinct || sortedDistinct();
    writer.result().sortedSelf = here || (statement.orderBy.empty() && limit == 0);
    if (here) {
        text += writer.sort(statement.orderBy);
        text += limit > 0 ? limitBehind(limit) : "";
    }
    return writer.finish(std::move(text));
}

Rendered Dialect::change(const Statement& statement, const TableSchema& table) const
{
    if (const auto* insertion = std::get_if<Insert>(&statement))
        return insert(table, insertion->values);
    Writer writer(*this, table);
    if (const auto* update = std::get_if<Update>(&statement)) {
        const std::string values = assignments(writer, update->values);
        return writer.finish(fmt::format("UPDATE {} SET {}{}", writer.table(), values, writer.where(update->where)));
    }
    const auto* remove = std::get_if<Delete>(&statement);
    assert(remove);
    return writer.finish(fmt::format("DELETE FROM {}{}", writer.table(), writer.where(remove->where)));
}

Rendered Dialect::insert(const TableSchema& table, std::span<const Assignment> values) const
{
    Writer writer(*this, table);
    std::vector<std::string> names;
    std::vector<std::string> texts;
    for (const Assignment& assignment : values) {
        names.push_back(writer.name(writer.column(assignment.column)));
        texts.push_back(writer.value(assignment));
    }
    if (values.empty())
        return writer.finish(fmt::format("INSERT INTO {} DEFAULT VALUES", writer.table()));
    return writer.finish(
        fmt::format("INSERT INTO {} ({}) VALUES ({})", writer.table(), join(names, ", "), join(texts, ", ")));
}

Rendered Dialect::update(const TableSchema& table, RowKey row, std::span<const Assignment> values) const
{
    Writer writer(*this, table);
    const std::string newValues = assignments(writer, values);
    return writer.finish(fmt::format("UPDATE {} SET {}{}", writer.table(), newValues, writer.row(row)));
}

Rendered Dialect::remove(const TableSchema& table, RowKey row) const
{
    Writer writer(*this, table);
    return writer.finish(fmt::format("DELETE FROM {}{}", writer.table(), writer.row(row)));
}

Rendered Dialect::readRow(const TableSchema& table, RowImage picture) const
{
    Writer writer(*this, table);
    const std::string selection = writer.selection({});
    return writer.finish(fmt::format("SELECT {} FROM {}{}", selection, writer.table(), writer.row(picture)));
}

Rendered Dialect::countRow(const TableSchema& table, RowImage picture) const
{
    Writer writer(*this, table);
    writer.result().columns = {{"Anzahl", FieldType::Integer}};
    return writer.finish(fmt::format("SELECT COUNT(*) FROM {}{}", writer.table(), writer.row(picture)));
}

Rendered Dialect::updateRow(const TableSchema& table, RowImage picture, std::span<const Assignment> values) const
{
    Writer writer(*this, table);
    const std::string newValues = assignments(writer, values);
    return writer.finish(fmt::format("UPDATE {} SET {}{}", writer.table(), newValues, writer.row(picture)));
}

Rendered Dialect::removeRow(const TableSchema& table, RowImage picture) const
{
    Writer writer(*this, table);
    return writer.finish(fmt::format("DELETE FROM {}{}", writer.table(), writer.row(picture)));
}

} // namespace quelvarn::sql
