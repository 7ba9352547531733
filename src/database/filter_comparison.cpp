#include "database/filter_comparison.h"

#include "base/collation.h"
#include "database/column_search.h"
#include "database/sql/column_value.h"

#include <optional>

namespace quelvarn {

namespace {

using sql::Comparison;

// True when a value in this order to the literal (below 0, 0, above 0) meets the comparison.
bool meets(Comparison comparison, int rowOrder)
{
    switch (comparison) {
    case Comparison::Equal:
        return rowOrder == 0;
    case Comparison::Unequal:
        return rowOrder != 0;
    case Comparison::Less:
        return rowOrder < 0;
    case Comparison::LessEqual:
        return rowOrder <= 0;
    case Comparison::Greater:
        return rowOrder > 0;
    case Comparison::GreaterEqual:
        return rowOrder >= 0;
    case Comparison::Like:
    case Comparison::NotLike:
        break;
    }
    return false;
}

class TextSelection : public Selection
{
public:
    explicit TextSelection(std::unique_ptr<TextHits> hits) : hits_(std::move(hits)) {}
    void keep(std::vector<RowNumber>& rows) override { hits_->keep(rows); }
    bool nowhere() override { return hits_->nowhere(); }

private:
    std::unique_ptr<TextHits> hits_;
};

// Rows whose cell passes a test.
template <class Check> class CellSelection : public Selection
{
public:
    explicit CellSelection(Check check) : check_(std::move(check)) {}
    void keep(std::vector<RowNumber>& rows) override
    {
        std::size_t stay = 0;
        for (const RowNumber row : rows) {
            rows[stay] = row;
            stay += check_(row);
        }
        rows.resize(stay);
    }

private:
    Check check_;
};

template <class Check> std::unique_ptr<Selection> cellSelection(Check check)
{
    return std::make_unique<CellSelection<Check>>(std::move(check));
}

// Null is LEER in the row of numbers: the smallest whole number, or a double that is unequal to itself.
template <class Number, class Literal>
std::unique_ptr<Selection> numberSelection(const NumberColumn<Number>& column, Comparison comparison, Literal literal)
{
    const Number* numbers = column.numbers().data();
    const auto taken = [](Number number) { return !NumberColumn<Number>::isEmpty(number); };
    switch (comparison) {
    case Comparison::Equal:
        return cellSelection([=](RowNumber row) { return taken(numbers[row]) & (numbers[row] == literal); });
    case Comparison::Unequal:
        return cellSelection([=](RowNumber row) { return taken(numbers[row]) & (numbers[row] != literal); });
    case Comparison::Less:
        return cellSelection([=](RowNumber row) { return taken(numbers[row]) & (numbers[row] < literal); });
    case Comparison::LessEqual:
        return cellSelection([=](RowNumber row) { return taken(numbers[row]) & (numbers[row] <= literal); });
    case Comparison::Greater:
        return cellSelection([=](RowNumber row) { return taken(numbers[row]) & (numbers[row] > literal); });
    default:
        return cellSelection([=](RowNumber row) { return taken(numbers[row]) & (numbers[row] >= literal); });
    }
}

// LIKE over numbers or dates looks at their text.
std::unique_ptr<Selection> likeOverText(const Column& column, LikePattern pattern, bool negated)
{
    return cellSelection([&column, pattern = std::move(pattern), negated](RowNumber row) {
        return !column.isNull(row) && pattern.matches(asText(column.value(row))) != negated;
    });
}

// A column in which some cells are of another type than the column: cell by cell. A cell that cannot be compared
// with the literal does not meet the comparison.
std::unique_ptr<Selection> singleSelection(const Column& column, Comparison comparison, const Value& literal)
{
    return cellSelection([&column, comparison, literal](RowNumber row) {
        const Value cell = column.value(row);
        if (isNull(cell) || cell.index() == Value(std::string{}).index())
            return false;
        const double left = asNumber(cell);
        const double right = asNumber(literal);
        return meets(comparison, left < right ? -1 : left > right ? 1 : 0);
    });
}

std::unique_ptr<Selection> textComparison(const TextColumn& column, Comparison comparison, const std::string& text)
{
    if (comparison == Comparison::Equal || comparison == Comparison::Unequal)
        return std::make_unique<TextSelection>(equalHits(column, text, comparison == Comparison::Unequal));
    return std::make_unique<TextSelection>(checkHits(
        column, [comparison, text](std::string_view cell) { return meets(comparison, compareText(cell, text)); }));
}

std::unique_ptr<Selection> integerComparison(const NumberColumn<std::int64_t>& column, Comparison comparison,
                                             const Value& literal)
{
    if (column.hasForeign())
        return singleSelection(column, comparison, literal);
    if (const auto* time = std::get_if<DateTime>(&literal))
        return numberSelection(column, comparison, time->seconds);
    // A number keeps its fraction: nothing equals 1.5, and 1 is below it.
    if (const auto* number = std::get_if<double>(&literal))
        return numberSelection(column, comparison, *number);
    return numberSelection(column, comparison, std::get<std::int64_t>(literal));
}

std::unique_ptr<Selection> floatingPointComparison(const NumberColumn<double>& column, Comparison comparison,
                                                   const Value& literal)
{
    if (column.hasForeign())
        return singleSelection(column, comparison, literal);
    return numberSelection(column, comparison, asNumber(literal));
}

std::unique_ptr<Selection> buildLike(const Column& column, const sql::Condition& condition)
{
    const bool negated = condition.comparison == Comparison::NotLike;
    const std::string pattern = asText(condition.value);
    if (column.type() == FieldType::Text)
        return std::make_unique<TextSelection>(
            likeHits(static_cast<const TextColumn&>(column), pattern, condition.wildcards, negated));
    return likeOverText(column, LikePattern(pattern, condition.wildcards), negated);
}

} // namespace

std::unique_ptr<Selection> buildComparison(const Column& column, const sql::Condition& condition)
{
    if (condition.comparison == Comparison::Like || condition.comparison == Comparison::NotLike)
        return buildLike(column, condition);
    const auto literal = isNull(condition.value) ? std::nullopt : sql::comparisonValue(condition.value, column.type());
    if (!literal)
        return cellSelection([](RowNumber) { return false; });
    if (column.type() == FieldType::Text)
        return textComparison(static_cast<const TextColumn&>(column), condition.comparison,
                              std::get<std::string>(*literal));
    if (column.type() == FieldType::FloatingPoint)
        return floatingPointComparison(static_cast<const NumberColumn<double>&>(column), condition.comparison,
                                       *literal);
    return integerComparison(static_cast<const NumberColumn<std::int64_t>&>(column), condition.comparison, *literal);
}

std::unique_ptr<Selection> buildNullCheck(const Column& column, bool negated)
{
    return cellSelection([&column, negated](RowNumber row) { return column.isNull(row) != negated; });
}

Comparison opposite(Comparison comparison)
{
    switch (comparison) {
    case Comparison::Equal:
        return Comparison::Unequal;
    case Comparison::Unequal:
        return Comparison::Equal;
    case Comparison::Less:
        return Comparison::GreaterEqual;
    case Comparison::LessEqual:
        return Comparison::Greater;
    case Comparison::Greater:
        return Comparison::LessEqual;
    case Comparison::GreaterEqual:
        return Comparison::Less;
    case Comparison::Like:
        return Comparison::NotLike;
    case Comparison::NotLike:
        break;
    }
    return Comparison::Like;
}

} // namespace quelvarn
