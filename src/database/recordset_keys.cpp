#include "database/recordset_keys.h"

#include <algorithm>
#include <limits>

namespace quelvarn {

namespace {

constexpr RowNumber NONE = std::numeric_limits<RowNumber>::max();
// An array may have so many places for each row.
constexpr std::uint64_t PLACES_PER_ROW = 4;

} // namespace

KeyMap::KeyMap(std::span<const RowKey> key)
{
    if (key.empty())
        return;
    const auto [smallest, greatest] = std::minmax_element(key.begin(), key.end());
    smallest_ = *smallest;
    const auto span = static_cast<std::uint64_t>(*greatest) - static_cast<std::uint64_t>(*smallest);
    if (span < key.size() * PLACES_PER_ROW) {
        dense_.assign(span + 1, NONE);
        for (std::size_t row = 0; row < key.size(); ++row)
            dense_[static_cast<std::size_t>(key[row] - smallest_)] = static_cast<RowNumber>(row);
        return;
    }
    sorted_.reserve(key.size());
    for (std::size_t row = 0; row < key.size(); ++row)
        sorted_.push_back({key[row], static_cast<RowNumber>(row)});
    std::sort(sorted_.begin(), sorted_.end(),
              [](const Entry& left, const Entry& right) { return left.key < right.key; });
}

std::optional<RowNumber> KeyMap::findRow(RowKey key)
{
    if (sorted_.empty()) {
        const auto place = static_cast<std::uint64_t>(key) - static_cast<std::uint64_t>(smallest_);
        if (place >= dense_.size() || dense_[place] == NONE)
            return std::nullopt;
        return dense_[place];
    }
    if (next_ == sorted_.size() || sorted_[next_].key != key) {
        const auto position = std::lower_bound(sorted_.begin(), sorted_.end(), key,
                                               [](const Entry& entry, RowKey value) { return entry.key < value; });
        next_ = static_cast<std::size_t>(position - sorted_.begin());
        if (position == sorted_.end() || position->key != key)
            return std::nullopt;
    }
    return sorted_[next_++].row;
}

} // namespace quelvarn
