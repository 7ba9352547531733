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
        handle_->gibZurueck(std::move(sql_), statement_);
}

Statement::Statement(Statement&& andere) noexcept
    : handle_(std::move(andere.handle_)), sql_(std::move(andere.sql_)),
      statement_(std::exchange(andere.statement_, nullptr))
{}

void Statement::binde(int parameter, const Value& wert)
{
    if (const auto* text = std::get_if<std::string>(&wert))
        bindeText(parameter, *text, Textdauer::Kopie);
    else if (const auto* zeit = std::get_if<Zeitpunkt>(&wert))
        bindeText(parameter, formatIso(*zeit), Textdauer::Kopie);
    else if (const auto* ganz = std::get_if<std::int64_t>(&wert))
        pruefe(sqlite3_bind_int64(statement_, parameter, *ganz));
    else if (const auto* zahl = std::get_if<double>(&wert))
        pruefe(sqlite3_bind_double(statement_, parameter, *zahl));
    else
        pruefe(sqlite3_bind_null(statement_, parameter));
}

void Statement::bindeText(int parameter, std::string_view text, Textdauer dauer)
{
    // An empty view may point nowhere, which SQLite would take as Null.
    const char* anfang = text.empty() ? "" : text.data();
    pruefe(sqlite3_bind_text64(statement_, parameter, anfang, text.size(),
                               dauer == Textdauer::Kopie ? SQLITE_TRANSIENT : SQLITE_STATIC, SQLITE_UTF8));
}

void Statement::pruefe(int ergebnis) const
{
    if (ergebnis != SQLITE_OK)
        handle_->melde(ergebnis);
}

bool Statement::step()
{
    const int ergebnis = handle_->call([this] { return sqlite3_step(statement_); });
    if (ergebnis == SQLITE_ROW)
        return true;
    if (ergebnis != SQLITE_DONE)
        handle_->melde(ergebnis);
    return false;
}

std::string_view Statement::text(int spalte) const
{
    const auto* anfang = reinterpret_cast<const char*>(sqlite3_column_text(statement_, spalte));
    if (!anfang)
        return {};
    return {anfang, static_cast<std::size_t>(sqlite3_column_bytes(statement_, spalte))};
}

void Statement::setzeZurueck()
{
    sqlite3_reset(statement_);
}

} // namespace quelvarn::sqlite
