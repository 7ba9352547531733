#include "database/odbc/reader.h"

#include <limits>

namespace quelvarn::odbc {

std::string_view RowCarrier::text(std::size_t column) const
{
    if (const auto* text = std::get_if<std::string>(&row_[column]))
        return *text;
    text_ = asText(row_[column]);
    return text_;
}

Reader::Reader(StatementHandle statement, std::vector<ColumnInfo> columns, const std::vector<ColumnInfo>& rest,
               std::size_t limit, std::optional<KeySource> source)
    : RowCarrier(std::move(columns)), statement_(std::move(statement)),
      left_(limit > 0 ? limit : std::numeric_limits<std::size_t>::max()), source_(std::move(source))
{
    for (const ColumnInfo& column : this->columns())
        types_.push_back(column.type);
    for (const ColumnInfo& column : rest)
        types_.push_back(column.type);
    row_.resize(types_.size());
}

bool Reader::next()
{
    if (atEnd_ || left_ == 0 || !statement_.next()) {
        atEnd_ = true;
        return false;
    }
    --left_;
    for (std::size_t i = 0; i < types_.size(); ++i)
        row_[i] = statement_.cell(i, types_[i]);
    if (source_)
        rememberKey();
    return true;
}

void Reader::rememberKey()
{
    std::vector<Value> whole;
    for (const std::size_t position : source_->positions)
        whole.push_back(row_[position]);
    const std::string picture = RowBook::pictureOf(whole);
    key_ = source_->book->keyOf(picture, ++occurrences_[picture]);
}

bool ListReader::next()
{
    if (next_ == rows_.size())
        return false;
    key_ = rows_[next_].key;
    row_ = std::move(rows_[next_++].values);
    return true;
}

} // namespace quelvarn::odbc
