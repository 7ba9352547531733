#include "database/postgresql/reader.h"

#include "database/postgresql/text_values.h"

#include <libpq-fe.h>

namespace quelvarn::postgresql {

Reader::Reader(std::shared_ptr<Handle> handle, const std::string& sql, std::span<const Value> parameter,
               std::vector<ColumnInfo> columns, WithKey key)
    : handle_(std::move(handle)), columns_(std::move(columns)), offset_(key == WithKey::Yes ? 1 : 0)
{
    // A fault of the statement is told here, not at the first row.
    if (Result first = take(handle_->start(sql, parameter, *this)))
        rest_.push_back(std::move(first));
}

Reader::~Reader()
{
    if (onServer_)
        handle_->detach(*this);
}

Result Reader::fetchRow()
{
    try {
        return take(handle_->next());
    } catch (...) {
        onServer_ = false;
        fault_ = std::current_exception();
        throw;
    }
}

// The row, or nothing when the piece is the end of the rows.
Result Reader::take(Result piece)
{
    if (piece && PQresultStatus(piece.get()) == PGRES_SINGLE_TUPLE)
        return piece;
    onServer_ = false;
    handle_->detach(*this);
    return nullptr;
}

bool Reader::next()
{
    if (!rest_.empty()) {
        row_ = std::move(rest_.front());
        rest_.pop_front();
    } else if (fault_) {
        std::rethrow_exception(fault_);
    } else {
        row_ = onServer_ ? fetchRow() : nullptr;
    }
    return row_ != nullptr;
}

void Reader::holeRest() noexcept
{
    try {
        while (onServer_)
            if (Result row = fetchRow())
                rest_.push_back(std::move(row));
    } catch (...) {
        onServer_ = false; // next() tells it.
    }
}

RowKey Reader::key() const
{
    return offset_ ? integerFrom(PQgetvalue(row_.get(), 0, 0)).value_or(0) : 0;
}

bool Reader::isNull(std::size_t column) const
{
    return PQgetisnull(row_.get(), 0, static_cast<int>(column) + offset_);
}

std::string_view Reader::text(std::size_t column) const
{
    const int position = static_cast<int>(column) + offset_;
    return {PQgetvalue(row_.get(), 0, position), static_cast<std::size_t>(PQgetlength(row_.get(), 0, position))};
}

std::int64_t Reader::integer(std::size_t column) const
{
    return integerFrom(text(column)).value_or(0);
}

double Reader::floatingPoint(std::size_t column) const
{
    return floatingPointFrom(text(column)).value_or(0);
}

DateTime Reader::date(std::size_t column) const
{
    return parseIso(text(column)).value_or(DateTime{});
}

Value Reader::value(std::size_t column) const
{
    if (isNull(column))
        return {};
    return fromServerText(text(column), columns_[column].type);
}

} // namespace quelvarn::postgresql
