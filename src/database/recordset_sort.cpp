#include "database/recordset_sort.h"

#include "base/collation.h"
#include "base/text.h"

#include <algorithm>

namespace quelvarn {

std::vector<SortField> readSort(std::string_view expression,
                                const std::function<std::size_t(std::string_view)>& fieldOf)
{
    std::vector<SortField> fields;
    if (trim(expression).empty())
        return fields;
    for (const std::string& part : split(expression, ',')) {
        std::string_view name = trim(part);
        bool descending = false;
        if (const auto gap = name.rfind(' '); gap != std::string_view::npos) {
            const std::string direction = toLower(name.substr(gap + 1));
            descending = direction == "desc";
            if (descending || direction == "asc")
                name = trim(name.substr(0, gap));
        }
        if (name.size() > 2 && name.front() == '[' && name.back() == ']')
            name = name.substr(1, name.size() - 2);
        fields.push_back({fieldOf(name), descending});
    }
    return fields;
}

void sort(std::vector<RowNumber>& rows, const std::vector<SortField>& fields,
          const std::function<const Column&(std::size_t)>& column)
{
    // The last field first: each pass keeps the order of the one before among equal values.
    std::for_each(fields.rbegin(), fields.rend(), [&](const SortField& field) {
        const std::vector<std::int64_t> values = column(field.field).rankValues();
        const auto earlier = [&](RowNumber left, RowNumber right) { return values[left] < values[right]; };
        const auto later = [&](RowNumber left, RowNumber right) { return values[left] > values[right]; };
        if (field.descending)
            std::stable_sort(rows.begin(), rows.end(), later);
        else
            std::stable_sort(rows.begin(), rows.end(), earlier);
    });
}

} // namespace quelvarn
