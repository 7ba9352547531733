#include "ui/controls/column_widths.h"

#include <algorithm>
#include <numeric>

namespace quelvarn {

std::vector<int> columnWidths(int room, const std::vector<int>& shares, const std::vector<int>& least)
{
    std::vector<int> widths;
    for (const int share : shares)
        widths.push_back(room * share / 100);
    widths.back() += room - std::accumulate(widths.begin(), widths.end(), 0);
    const int spare = room - std::accumulate(least.begin(), least.end(), 0);
    if (spare < 0)
        return widths;
    int missing = 0;
    int given = 0; // What the others have above their least.
    for (std::size_t i = 0; i < widths.size(); ++i)
        (widths[i] < least[i] ? missing : given) += std::abs(widths[i] - least[i]);
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const int above = widths[i] - least[i];
        widths[i] = above <= 0 ? least[i] : widths[i] - above * missing / std::max(given, 1);
    }
    // The division took a few pixels too little; who has most can do without them.
    *std::max_element(widths.begin(), widths.end()) += room - std::accumulate(widths.begin(), widths.end(), 0);
    return widths;
}

} // namespace quelvarn
