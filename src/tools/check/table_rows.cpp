#include "tools/check/table_rows.h"

#include <algorithm>
#include <span>
#include <utility>

namespace quelvarn::tools {

namespace {

constexpr std::size_t ROWS_A_PORTION = 1000;

} // namespace

TableRows::TableRows(Engine& engine, std::string table, std::vector<std::string> columns)
    : engine_(engine), table_(std::move(table)), columns_(std::move(columns))
{
    sql::Select select;
    select.table = table_;
    if (!engine_.capabilities().loadsColumnsLater) {
        select.columns = columns_;
        portion_ = engine_.read(select, WithKey::No);
        return;
    }
    select.columns = {columns_.front()};
    for (const auto keys = engine_.read(select, WithKey::Yes); keys->next();)
        keys_.push_back(keys->key());
    readPortion();
}

bool TableRows::next()
{
    while (!portion_->next()) {
        if (read_ == keys_.size())
            return false;
        readPortion();
    }
    return true;
}

void TableRows::readPortion()
{
    const auto rest = std::span(keys_).subspan(read_);
    const auto keys = rest.first(std::min(ROWS_A_PORTION, rest.size()));
    read_ += keys.size();
    portion_.reset(); // Before the next one begins.
    portion_ = engine_.readRows(table_, columns_, keys);
}

} // namespace quelvarn::tools
