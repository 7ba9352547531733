#include "database/sqlite/reader.h"

#include <sqlite3.h>
#include <utility>

namespace quelvarn::sqlite {

Leser::Leser(Statement statement, std::vector<Spalte> spalten, MitSchluessel schluessel)
    : statement_(std::move(statement)), roh_(statement_.roh()), spalten_(std::move(spalten)),
      versatz_(schluessel == MitSchluessel::Ja ? 1 : 0)
{}

void Leser::begin()
{
    aufErster_ = next();
}

bool Leser::next()
{
    if (std::exchange(aufErster_, false))
        return true;
    if (zuEnde_)
        return false;
    if (statement_.step())
        return true;
    zuEnde_ = true;
    statement_.setzeZurueck();
    return false;
}

Zeilenschluessel Leser::schluessel() const
{
    return versatz_ ? sqlite3_column_int64(roh_, 0) : 0;
}

bool Leser::istNull(std::size_t spalte) const
{
    return sqlite3_column_type(roh_, stelle(spalte)) == SQLITE_NULL;
}

std::string_view Leser::text(std::size_t spalte) const
{
    return statement_.text(stelle(spalte));
}

std::optional<std::string_view> Leser::findText(std::size_t spalte) const
{
    const auto* anfang = reinterpret_cast<const char*>(sqlite3_column_text(roh_, stelle(spalte)));
    if (!anfang)
        return std::nullopt;
    return std::string_view(anfang, static_cast<std::size_t>(sqlite3_column_bytes(roh_, stelle(spalte))));
}

std::int64_t Leser::ganzzahl(std::size_t spalte) const
{
    return sqlite3_column_int64(roh_, stelle(spalte));
}

double Leser::gleitkomma(std::size_t spalte) const
{
    return sqlite3_column_double(roh_, stelle(spalte));
}

Zeitpunkt Leser::datum(std::size_t spalte) const
{
    return parseIso(text(spalte)).value_or(Zeitpunkt{});
}

Value Leser::wert(std::size_t spalte) const
{
    const FeldTyp typ = spalten_[spalte].typ;
    switch (sqlite3_column_type(roh_, stelle(spalte))) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        if (typ == FeldTyp::Gleitkomma)
            return gleitkomma(spalte);
        return ganzzahl(spalte);
    case SQLITE_FLOAT:
        return gleitkomma(spalte);
    default:
        if (typ == FeldTyp::Datum)
            if (const auto zeit = parseIso(text(spalte)))
                return *zeit;
        return std::string(text(spalte));
    }
}

} // namespace quelvarn::sqlite
