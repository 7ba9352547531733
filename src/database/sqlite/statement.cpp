#include "database/sqlite/statement.h"

#include "database/sqlite/handle.h"

#include <sqlite3.h>
#include <utility>

namespace quelvarn::sqlite {

Statement::Statement(std::shared_ptr<Handle> handle, std::string sql, sqlite3_stmt* statement)
    : handle_(std::move(handle)), sql_(std::move(sql)), statement_(statement)
{}

Statement::~Statement()
{
    if (statement_)
        handle_->giveBack(std::move(sql_), statement_);
}

Statement::Statement(Statement&& other) noexcept
    : handle_(std::move(other.handle_)), sql_(std::move(other.sql_)),
      statement_(std::exchange(other.statement_, nullptr))
{}

void Statement::bind(int parameter, const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value))
        bindText(parameter, *text, TextDuration::Copy);
    else if (const auto* time = std::get_if<DateTime>(&value))
        bindText(parameter, formatIso(*time), TextDuration::Copy);
    else if (const auto* whole = std::get_if<std::int64_t>(&value))
        check(sqlite3_bind_int64(statement_, parameter, *whole));
    else if (const auto* number = std::get_if<double>(&value))
        check(sqlite3_bind_double(statement_, parameter, *number));
    else
        check(sqlite3_bind_null(statement_, parameter));
}

void Statement::bindText(int parameter, std::string_view text, TextDuration duration)
{
    // An empty view may point nowhere, which SQLite would take as Null.
    const char* begin = text.empty() ? "" : text.data();
    check(sqlite3_bind_text64(statement_, parameter, begin, text.size(),
                              duration == TextDuration::Copy ? SQLITE_TRANSIENT : SQLITE_STATIC, SQLITE_UTF8));
}

void Statement::check(int result) const
{
    if (result != SQLITE_OK)
        handle_->notify(result);
}

bool Statement::step()
{
    const int result = handle_->call([this] { return sqlite3_step(statement_); });
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        handle_->notify(result);
    return false;
}

std::string_view Statement::text(int column) const
{
    const auto* begin = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    if (!begin)
        return {};
    return {begin, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

void Statement::reset()
{
    sqlite3_reset(statement_);
}

} // namespace quelvarn::sqlite
