#include "database/column.h"

#include "base/collation.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <optional>

namespace quelvarn {

Value TextColumn::value(RowNumber row) const
{
    const TextCode code = codes_[row];
    return code == 0 ? Value{} : Value{std::string(texts_.text(code))};
}

TextCode TextColumn::codeOf(const Value& value)
{
    if (quelvarn::isNull(value))
        return 0;
    const auto* text = std::get_if<std::string>(&value);
    return texts_.codeOf(text ? *text : asText(value));
}

void TextColumn::set(RowNumber row, const Value& value)
{
    codes_[row] = codeOf(value);
}

void TextColumn::append(const Value& value)
{
    codes_.push_back(codeOf(value));
}

void TextColumn::commit()
{
    texts_.commit();
    codes_.shrink_to_fit();
}

std::vector<std::int64_t> TextColumn::rankValues() const
{
    std::vector<std::string> key(texts_.count());
    for (TextCode code = 1; code < key.size(); ++code)
        key[code] = sortKey(texts_.text(code));
    std::vector<TextCode> ranked(texts_.count());
    std::iota(ranked.begin(), ranked.end(), TextCode{0});
    std::sort(ranked.begin() + 1, ranked.end(), [&](TextCode left, TextCode right) { return key[left] < key[right]; });
    std::vector<std::int64_t> rank(ranked.size(), 0);
    for (std::size_t i = 1; i < ranked.size(); ++i) {
        const bool equal = i > 1 && key[ranked[i]] == key[ranked[i - 1]];
        rank[ranked[i]] = equal ? rank[ranked[i - 1]] : static_cast<std::int64_t>(i);
    }
    std::vector<std::int64_t> values(codes_.size());
    std::transform(codes_.begin(), codes_.end(), values.begin(), [&](TextCode code) { return rank[code]; });
    return values;
}

std::size_t TextColumn::memory() const
{
    return codes_.capacity() * sizeof(TextCode) + texts_.memory();
}

namespace {

// The cell as the column keeps it; nothing when it is of another kind.
std::optional<std::int64_t> asCell(const Value& value, FieldType type, std::int64_t)
{
    if (type == FieldType::Date) {
        const auto* time = std::get_if<DateTime>(&value);
        return time ? std::optional(time->seconds) : std::nullopt;
    }
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return *whole;
    return std::nullopt;
}

std::optional<double> asCell(const Value& value, FieldType, double)
{
    if (const auto* number = std::get_if<double>(&value))
        return *number;
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*whole);
    return std::nullopt;
}

std::int64_t rankOf(std::int64_t number)
{
    return number;
}

// The bits of doubles, taken as whole numbers, are in order once those of negative ones are turned round.
std::int64_t rankOf(double number)
{
    if (number == 0)
        return 0;
    const auto bits = std::bit_cast<std::int64_t>(number);
    return bits >= 0 ? bits : std::numeric_limits<std::int64_t>::min() - bits;
}

} // namespace

template <class Number> bool NumberColumn<Number>::isNull(RowNumber row) const
{
    return isEmpty(numbers_[row]) && !foreign_.contains(row);
}

template <class Number> Value NumberColumn<Number>::value(RowNumber row) const
{
    const Number number = numbers_[row];
    if (isEmpty(number)) {
        const auto foreign = foreign_.find(row);
        return foreign == foreign_.end() ? Value{} : foreign->second;
    }
    if constexpr (std::is_same_v<Number, std::int64_t>) {
        if (type() == FieldType::Date)
            return DateTime{number};
    }
    return number;
}

template <class Number> void NumberColumn<Number>::set(RowNumber row, const Value& value)
{
    const auto cell = asCell(value, type(), Number{});
    numbers_[row] = cell.value_or(EMPTY);
    if (!cell && !quelvarn::isNull(value))
        foreign_[row] = value;
    else if (!foreign_.empty())
        foreign_.erase(row);
}

template <class Number> void NumberColumn<Number>::append(const Value& value)
{
    numbers_.push_back(EMPTY);
    set(static_cast<RowNumber>(numbers_.size() - 1), value);
}

template <class Number> std::vector<std::int64_t> NumberColumn<Number>::rankValues() const
{
    std::vector<std::int64_t> values(numbers_.size());
    std::transform(numbers_.begin(), numbers_.end(), values.begin(), [](Number number) {
        return isEmpty(number) ? std::numeric_limits<std::int64_t>::min() : rankOf(number);
    });
    for (const auto& [row, value] : foreign_)
        values[row] = std::numeric_limits<std::int64_t>::max();
    return values;
}

template <class Number> std::size_t NumberColumn<Number>::memory() const
{
    return numbers_.capacity() * sizeof(Number) + foreign_.size() * (sizeof(Value) + 32);
}

template class NumberColumn<std::int64_t>;
template class NumberColumn<double>;

std::unique_ptr<Column> newColumn(FieldType type)
{
    switch (type) {
    case FieldType::Text:
        return std::make_unique<TextColumn>();
    case FieldType::FloatingPoint:
        return std::make_unique<NumberColumn<double>>(type);
    case FieldType::Integer:
    case FieldType::Date:
        break;
    }
    return std::make_unique<NumberColumn<std::int64_t>>(type);
}

std::unique_ptr<Column> newSortedColumn(FieldType type)
{
    if (type == FieldType::Text)
        return std::make_unique<TextColumn>(TextPool::Search::Neighbour);
    return newColumn(type);
}

} // namespace quelvarn
