#include "database/filter_evaluator.h"

#include "database/filter_comparison.h"

#include <algorithm>

namespace quelvarn {

namespace {

using Parts = std::vector<std::unique_ptr<Selection>>;

// Every part narrows what the part before left.
class All : public Selection
{
public:
    explicit All(Parts parts) : parts_(std::move(parts)) {}
    void keep(std::vector<RowNumber>& rows) override
    {
        for (const auto& part : parts_)
            part->keep(rows);
    }
    bool nowhere() override
    {
        return std::ranges::any_of(parts_, [](const auto& part) { return part->nowhere(); });
    }

private:
    Parts parts_;
};

// `less` holds some of the rows of `rows` in the same order: leaves the others.
void takeAway(std::vector<RowNumber>& rows, const std::vector<RowNumber>& less)
{
    std::size_t stay = 0;
    auto next = less.begin();
    for (const RowNumber row : rows) {
        if (next != less.end() && *next == row)
            ++next;
        else
            rows[stay++] = row;
    }
    rows.resize(stay);
}

// Each part looks only at the rows that no part before has taken.
class One : public Selection
{
public:
    explicit One(Parts parts) : parts_(std::move(parts)) {}
    void keep(std::vector<RowNumber>& rows) override
    {
        std::vector<RowNumber> left = rows;
        for (const auto& part : parts_) {
            std::vector<RowNumber> hits = left;
            part->keep(hits);
            takeAway(left, hits);
        }
        takeAway(rows, left);
    }
    bool nowhere() override
    {
        return std::ranges::all_of(parts_, [](const auto& part) { return part->nowhere(); });
    }

private:
    Parts parts_;
};

// Builds the tree with every NOT carried down to the comparisons: there it only has to leave out Null.
class Builder
{
public:
    explicit Builder(const ColumnSearch& columns) : columns_(columns) {}

    std::unique_ptr<Selection> build(const sql::Expression& expression, bool negated) const
    {
        return std::visit([&](const auto& content) { return build(content, negated); }, expression.content);
    }

private:
    std::unique_ptr<Selection> build(const sql::Condition& condition, bool negated) const
    {
        const sql::Comparison comparison = negated ? opposite(condition.comparison) : condition.comparison;
        return buildComparison(columns_(condition.column),
                               {condition.column, comparison, condition.value, condition.wildcards});
    }
    std::unique_ptr<Selection> build(const sql::IsNull& check, bool negated) const
    {
        return buildNullCheck(columns_(check.column), check.negated != negated);
    }
    std::unique_ptr<Selection> build(const sql::Not& negate, bool negated) const
    {
        return build(*negate.part, !negated);
    }
    std::unique_ptr<Selection> build(const sql::And& both, bool negated) const
    {
        return connect(both.parts, negated, !negated);
    }
    std::unique_ptr<Selection> build(const sql::Or& either, bool negated) const
    {
        return connect(either.parts, negated, negated);
    }

    std::unique_ptr<Selection> connect(const std::vector<sql::ExpressionPointer>& parts, bool negated, bool all) const
    {
        Parts built;
        for (const auto& part : parts)
            built.push_back(build(*part, negated));
        if (all)
            return std::make_unique<All>(std::move(built));
        return std::make_unique<One>(std::move(built));
    }

    const ColumnSearch& columns_;
};

// Hands every column name of the condition to `take`.
template <class Taker> void visits(const sql::Expression& expression, const Taker& take)
{
    const auto& content = expression.content;
    if (const auto* condition = std::get_if<sql::Condition>(&content))
        take(condition->column);
    else if (const auto* check = std::get_if<sql::IsNull>(&content))
        take(check->column);
    else if (const auto* negate = std::get_if<sql::Not>(&content))
        visits(*negate->part, take);
    else
        for (const auto& part : std::holds_alternative<sql::And>(content) ? std::get<sql::And>(content).parts
                                                                          : std::get<sql::Or>(content).parts)
            visits(*part, take);
}

} // namespace

std::unique_ptr<Selection> buildSelection(const sql::Expression& expression, const ColumnSearch& columns)
{
    return Builder(columns).build(expression, false);
}

std::vector<std::string> namedColumns(const sql::Expression& expression)
{
    std::vector<std::string> names;
    visits(expression, [&](const std::string& name) {
        if (std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    });
    return names;
}

} // namespace quelvarn
