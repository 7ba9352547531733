#include "database/distinct_reader.h"

#include "base/collation.h"

#include <algorithm>
#include <unordered_set>

namespace quelvarn {
namespace {

int compare(const Value& left, const Value& right)
{
    const auto* linkerText = std::get_if<std::string>(&left);
    const auto* rightText = std::get_if<std::string>(&right);
    if (linkerText && rightText)
        return compareText(*linkerText, *rightText);
    return left < right ? -1 : (right < left ? 1 : 0); // Null stands before everything.
}

// Equal for rows that are equal to the program. Each cell ends with a NUL, which no key holds.
std::string comparisonKey(const RowReader& row)
{
    std::string key;
    for (std::size_t i = 0; i < row.columns().size(); ++i) {
        key += row.isNull(i) ? 'N' : 'W';
        key += sortKey(row.text(i));
        key += '\0';
    }
    return key;
}

} // namespace

DistinctReader::DistinctReader(RowReader& server, const std::vector<sql::Sort>& rowOrder, std::size_t limit)
    : columns_(server.columns())
{
    read(server);
    sort(rowOrder);
    if (limit > 0 && rows_.size() > limit)
        rows_.resize(limit);
}

void DistinctReader::read(RowReader& server)
{
    std::unordered_set<std::string> known;
    while (server.next()) {
        if (!known.insert(comparisonKey(server)).second)
            continue;
        Row& row = rows_.emplace_back();
        for (std::size_t i = 0; i < columns_.size(); ++i)
            row.push_back(server.value(i));
    }
}

void DistinctReader::sort(const std::vector<sql::Sort>& rowOrder)
{
    std::vector<std::pair<std::size_t, bool>> positions;
    for (const sql::Sort& part : rowOrder) {
        const auto column =
            std::ranges::find_if(columns_, [&](const ColumnInfo& s) { return equalText(s.name, part.column); });
        positions.emplace_back(column - columns_.begin(), part.descending); // The renderer has checked the name.
    }
    std::ranges::stable_sort(rows_, [&](const Row& left, const Row& right) {
        for (const auto& [position, descending] : positions)
            if (const int difference = compare(left[position], right[position]))
                return (difference < 0) != descending;
        return false;
    });
}

std::string_view DistinctReader::text(std::size_t column) const
{
    text_ = asText(cell(column));
    return text_;
}

} // namespace quelvarn
