#include "database/row_view.h"

#include <algorithm>
#include <numeric>

namespace quelvarn {

void RowView::showAll(std::size_t rows)
{
    *this = {};
    count_ = rows;
}

void RowView::show(std::vector<RowNumber> rows, bool ascending)
{
    all_ = false;
    ascending_ = ascending;
    rows_ = std::move(rows);
}

std::optional<std::size_t> RowView::findPosition(RowNumber row) const
{
    if (all_)
        return row < count_ ? std::optional<std::size_t>(row) : std::nullopt;
    const auto position =
        ascending_ ? std::lower_bound(rows_.begin(), rows_.end(), row) : std::find(rows_.begin(), rows_.end(), row);
    if (position == rows_.end() || *position != row)
        return std::nullopt;
    return static_cast<std::size_t>(position - rows_.begin());
}

std::vector<RowNumber> RowView::crop(std::size_t from, std::size_t until) const
{
    std::vector<RowNumber> rows(until - from);
    if (all_)
        std::iota(rows.begin(), rows.end(), static_cast<RowNumber>(from));
    else
        std::copy_n(rows_.begin() + static_cast<std::ptrdiff_t>(from), until - from, rows.begin());
    return rows;
}

void RowView::append(RowNumber row)
{
    if (all_ && row == count_) {
        ++count_;
        return;
    }
    writeOut();
    rows_.push_back(row);
}

void RowView::remove(std::size_t position)
{
    writeOut();
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(position));
}

void RowView::writeOut()
{
    if (!all_)
        return;
    rows_ = crop(0, count_);
    all_ = false;
    ascending_ = true;
}

} // namespace quelvarn
