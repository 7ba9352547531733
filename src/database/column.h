#pragma once

#include "database/column_texts.h"
#include "database/value.h"

#include <limits>
#include <memory>
#include <unordered_map>
#include <vector>

namespace quelvarn {

// A row of a recordset in the order of its opening.
using RowNumber = std::uint32_t;

// One column of a recordset: the cells of all its rows.
class Column
{
public:
    explicit Column(FieldType type) : type_(type) {}
    virtual ~Column() = default;
    FieldType type() const { return type_; }

    virtual std::size_t count() const = 0;
    virtual bool isNull(RowNumber row) const = 0;
    virtual Value value(RowNumber row) const = 0;
    virtual void set(RowNumber row, const Value& value) = 0;
    virtual void append(const Value& value) = 0;
    // New rows are Null.
    virtual void setCount(std::size_t rows) = 0;
    // Frees what only filling needs.
    virtual void commit() {}
    // For each row a number in the order of the values, Null first.
    virtual std::vector<std::int64_t> rankValues() const = 0;
    virtual std::size_t memory() const = 0;

private:
    FieldType type_;
};

// Texts by their codes.
class TextColumn : public Column
{
public:
    explicit TextColumn(TextPool::Search search = TextPool::Search::All) : Column(FieldType::Text), texts_(search) {}

    std::size_t count() const override { return codes_.size(); }
    bool isNull(RowNumber row) const override { return codes_[row] == 0; }
    Value value(RowNumber row) const override;
    void set(RowNumber row, const Value& value) override;
    void append(const Value& value) override;
    void setCount(std::size_t rows) override { codes_.resize(rows); }
    void commit() override;
    std::vector<std::int64_t> rankValues() const override;
    std::size_t memory() const override;

    void appendText(std::string_view text) { codes_.push_back(texts_.codeOf(text)); }
    void appendNull() { codes_.push_back(0); }
    // For filling in another order than that of the rows.
    TextCode newCode(std::string_view text) { return texts_.codeOf(text); }
    void setCode(RowNumber row, TextCode code) { codes_[row] = code; }
    const std::vector<TextCode>& codes() const { return codes_; }
    const TextPool& texts() const { return texts_; }

private:
    TextCode codeOf(const Value& value);

    std::vector<TextCode> codes_;
    TextPool texts_;
};

// Numbers, or dates as their seconds. A cell of another kind (a text that stands in a number column) is kept as
// it is beside the row of numbers, where it counts as Null.
template <class Number> class NumberColumn : public Column
{
public:
    using Column::Column;
    static constexpr Number EMPTY = std::numeric_limits<Number>::has_quiet_NaN
                                        ? std::numeric_limits<Number>::quiet_NaN()
                                        : std::numeric_limits<Number>::min();
    static bool isEmpty(Number number)
    {
        return std::numeric_limits<Number>::has_quiet_NaN ? number != number : number == EMPTY;
    }

    std::size_t count() const override { return numbers_.size(); }
    bool isNull(RowNumber row) const override;
    Value value(RowNumber row) const override;
    void set(RowNumber row, const Value& value) override;
    void append(const Value& value) override;
    void setCount(std::size_t rows) override { numbers_.resize(rows, EMPTY); }
    void commit() override { numbers_.shrink_to_fit(); }
    std::vector<std::int64_t> rankValues() const override;
    std::size_t memory() const override;

    const std::vector<Number>& numbers() const { return numbers_; }
    bool hasForeign() const { return !foreign_.empty(); }

private:
    std::vector<Number> numbers_;
    std::unordered_map<RowNumber, Value> foreign_;
};

extern template class NumberColumn<std::int64_t>;
extern template class NumberColumn<double>;

std::unique_ptr<Column> newColumn(FieldType type);
// For a column whose values arrive in order.
std::unique_ptr<Column> newSortedColumn(FieldType type);

} // namespace quelvarn
