#include "database/sqlite/reader.h"

#include <sqlite3.h>
#include <utility>

namespace quelvarn::sqlite {

Reader::Reader(Statement statement, std::vector<ColumnInfo> columns, WithKey key)
    : statement_(std::move(statement)), raw_(statement_.raw()), columns_(std::move(columns)),
      offset_(key == WithKey::Yes ? 1 : 0)
{}

void Reader::begin()
{
    onFirst_ = next();
}

bool Reader::next()
{
    if (std::exchange(onFirst_, false))
        return true;
    if (atEnd_)
        return false;
    if (statement_.step())
        return true;
    atEnd_ = true;
    statement_.reset();
    return false;
}

RowKey Reader::key() const
{
    return offset_ ? sqlite3_column_int64(raw_, 0) : 0;
}

bool Reader::isNull(std::size_t column) const
{
    return sqlite3_column_type(raw_, position(column)) == SQLITE_NULL;
}

std::string_view Reader::text(std::size_t column) const
{
    return statement_.text(position(column));
}

std::optional<std::string_view> Reader::findText(std::size_t column) const
{
    const auto* begin = reinterpret_cast<const char*>(sqlite3_column_text(raw_, position(column)));
    if (!begin)
        return std::nullopt;
    return std::string_view(begin, static_cast<std::size_t>(sqlite3_column_bytes(raw_, position(column))));
}

std::int64_t Reader::integer(std::size_t column) const
{
    return sqlite3_column_int64(raw_, position(column));
}

double Reader::floatingPoint(std::size_t column) const
{
    return sqlite3_column_double(raw_, position(column));
}

DateTime Reader::date(std::size_t column) const
{
    return parseIso(text(column)).value_or(DateTime{});
}

Value Reader::value(std::size_t column) const
{
    const FieldType type = columns_[column].type;
    switch (sqlite3_column_type(raw_, position(column))) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        if (type == FieldType::FloatingPoint)
            return floatingPoint(column);
        return integer(column);
    case SQLITE_FLOAT:
        return floatingPoint(column);
    default:
        if (type == FieldType::Date)
            if (const auto time = parseIso(text(column)))
                return *time;
        return std::string(text(column));
    }
}

} // namespace quelvarn::sqlite
