#pragma once

#include <vector>

namespace quelvarn {

// Widths of columns that fill the room by their shares (percent), but none below what it needs at least as long as the
// room is enough for all of that. All but the last one: it takes the rest.
std::vector<int> columnWidths(int room, const std::vector<int>& shares, const std::vector<int>& least);

} // namespace quelvarn
