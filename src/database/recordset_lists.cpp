#include "database/recordset_lists.h"

#include "base/collation.h"
#include "database/filter_evaluator.h"
#include "database/recordset_columns.h"
#include "database/recordset_core.h"
#include "database/sql/parser.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace quelvarn {

namespace {

constexpr RowNumber NONE = std::numeric_limits<RowNumber>::max();

struct FoundText
{
    std::string key;     // sortKey of the text
    bool blanks = false; // behind the text
    RowKey row = 0;
    TextCode code = 0;
};

// For each code the row stored first among these, NONE for a code that no row has.
std::vector<RowNumber> firstRows(const TextColumn& column, const RowStore& memory, std::span<const RowNumber> rows)
{
    std::vector<RowNumber> first(column.texts().count(), NONE);
    const std::vector<TextCode>& codes = column.codes();
    for (const RowNumber row : rows) {
        RowNumber& soFar = first[codes[row]];
        if (soFar == NONE || memory.sequence(row) < memory.sequence(soFar))
            soFar = row;
    }
    return first;
}

} // namespace

std::optional<std::vector<Bookmark>> choose(Recordset& recordset, std::string_view text, const Progress& progress)
{
    RowFilter filter;
    if (SharedCondition condition = sql::parseCondition(text, sql::DateOrder::MonthFirst))
        filter.conditions.push_back(std::move(condition));
    return choose(recordset, filter, progress);
}

std::optional<std::vector<Bookmark>> choose(Recordset& recordset, const RowFilter& filter, const Progress& progress)
{
    coreOf(recordset).requireOpen();
    return coreOf(recordset).choose(filter, progress);
}

std::vector<std::string> distinctTexts(Recordset& recordset, std::string_view name, std::span<const Bookmark> rows,
                                       const std::function<bool(std::string_view)>& counts)
{
    loadColumn(recordset, name);
    const auto* column =
        dynamic_cast<const TextColumn*>(&coreOf(recordset).rows.column(coreOf(recordset).rows.fieldOf(name)));
    if (!column)
        throw recordsetFault(3421, "Das Feld '" + std::string(name) + "' enthält keine Texte.");
    const std::vector<RowNumber> first = firstRows(*column, coreOf(recordset).rows, rows);
    std::vector<FoundText> foundTexts;
    for (TextCode code = 1; code < first.size(); ++code) {
        const std::string_view text = column->texts().text(code);
        if (first[code] != NONE && (!counts || counts(text)))
            foundTexts.push_back(
                {sortKey(text), text.ends_with(' '), coreOf(recordset).rows.sequence(first[code]), code});
    }
    std::sort(foundTexts.begin(), foundTexts.end(), [](const FoundText& left, const FoundText& right) {
        const int order = left.key.compare(right.key);
        return order != 0 ? order < 0 : std::tie(left.blanks, left.row) < std::tie(right.blanks, right.row);
    });
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < foundTexts.size(); ++i)
        if (i == 0 || foundTexts[i].key != foundTexts[i - 1].key)
            texts.emplace_back(column->texts().text(foundTexts[i].code));
    return texts;
}

std::vector<double> distinctNumbers(Recordset& recordset, std::string_view name, std::span<const Bookmark> rows)
{
    loadColumn(recordset, name);
    const Column& column = coreOf(recordset).rows.column(coreOf(recordset).rows.fieldOf(name));
    std::vector<double> numbers;
    const auto collect = [&](const auto& columnOfNumbers) {
        for (const RowNumber row : rows) {
            const auto number = columnOfNumbers.numbers()[row];
            if (columnOfNumbers.isEmpty(number))
                continue;
            // Neighbours are often equal, and most columns hold few numbers.
            const auto value = static_cast<double>(number);
            if (numbers.empty() || numbers.back() != value)
                numbers.push_back(value);
        }
    };
    if (const auto* whole = dynamic_cast<const NumberColumn<std::int64_t>*>(&column))
        collect(*whole);
    else if (const auto* comma = dynamic_cast<const NumberColumn<double>*>(&column))
        collect(*comma);
    else
        throw recordsetFault(3421, "Das Feld '" + std::string(name) + "' enthält keine Zahlen.");
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

} // namespace quelvarn
