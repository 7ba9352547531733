#include "database/recordset_cells.h"

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::size_t BLOCK_ROWS = 128;
constexpr std::size_t AHEAD_LIMIT = 256;

} // namespace

Value CellBuffer::cell(const RowStore& rows, const RowView& view, std::size_t position, std::size_t field)
{
    if (const Value* value = find(position, field))
        return *value;
    if (std::find(asked_.begin(), asked_.end(), field) == asked_.end())
        asked_.push_back(field);
    std::erase_if(asked_, [&](std::size_t asked) { return rows.loaded(asked); });
    const std::size_t from = position - position % BLOCK_ROWS;
    read(rows, view, from, from + BLOCK_ROWS, asked_);
    return *find(position, field);
}

Value CellBuffer::rowValue(const RowStore& rows, const RowView& view, std::size_t position, std::size_t field)
{
    if (const Value* value = find(position, field))
        return *value;
    step_ = position == next_ ? std::min(step_ * 4, AHEAD_LIMIT) : 1;
    std::vector<std::size_t> fields;
    for (std::size_t number = 0; number < rows.fields().size(); ++number)
        if (!rows.loaded(number))
            fields.push_back(number);
    read(rows, view, position, position + step_, std::move(fields));
    next_ = position + step_;
    return *find(position, field);
}

void CellBuffer::clear()
{
    blocks_ = {};
}

const Value* CellBuffer::find(std::size_t position, std::size_t field)
{
    for (Block& block : blocks_) {
        if (position < block.from || position >= block.until)
            continue;
        const auto place = std::find(block.fields.begin(), block.fields.end(), field);
        if (place == block.fields.end())
            continue;
        block.used = ++clock_;
        return &block.values[(position - block.from) * block.fields.size() +
                             static_cast<std::size_t>(place - block.fields.begin())];
    }
    return nullptr;
}

void CellBuffer::read(const RowStore& rows, const RowView& view, std::size_t from, std::size_t until,
                      std::vector<std::size_t> fields)
{
    Block& block = *std::min_element(blocks_.begin(), blocks_.end(),
                                     [](const Block& left, const Block& right) { return left.used < right.used; });
    block = {};
    until = std::min(until, view.count());
    block.values = rows.readCells(view.crop(from, until), fields);
    block.fields = std::move(fields);
    block.from = from;
    block.until = until;
}

} // namespace quelvarn
