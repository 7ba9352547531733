#include "database/odbc/api.h"

#ifdef _WIN32
#include <windows.h>
#endif
#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/odbc/utf16.h"

#include <array>
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

namespace quelvarn::odbc {
namespace {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t));
static_assert(sizeof(SQLRETURN) == sizeof(Ergebnis));

SQLSMALLINT rohArt(Handleart art)
{
    if (art == Handleart::Umgebung)
        return SQL_HANDLE_ENV;
    return art == Handleart::Verbindung ? SQL_HANDLE_DBC : SQL_HANDLE_STMT;
}

} // namespace

void pruefe(Ergebnis ergebnis, Handleart art, RohHandle handle, std::string_view quelle)
{
    if (SQL_SUCCEEDED(ergebnis) || ergebnis == SQL_NO_DATA)
        return;
    std::array<char16_t, 6> status{};
    std::array<char16_t, 1024> text{};
    SQLINTEGER nummer = 0;
    SQLSMALLINT laenge = 0;
    const SQLRETURN auskunft =
        SQLGetDiagRecW(rohArt(art), handle, 1, reinterpret_cast<SQLWCHAR*>(status.data()), &nummer,
                       reinterpret_cast<SQLWCHAR*>(text.data()), static_cast<SQLSMALLINT>(text.size()), &laenge);
    const bool anweisungFalsch = status[0] == u'4' && status[1] == u'2'; // Syntax or access rule.
    throw Laufzeitfehler(anweisungFalsch ? FEHLER_ANWEISUNG : FEHLER_ALLGEMEIN, std::string(quelle),
                         SQL_SUCCEEDED(auskunft) ? ausUtf16(text.data()) : "Der ODBC-Treiber nennt keinen Grund.");
}

Handle::Handle(Handleart art, RohHandle eltern) : art_(art)
{
    const SQLRETURN ergebnis = SQLAllocHandle(rohArt(art), eltern, &roh_);
    if (SQL_SUCCEEDED(ergebnis))
        return;
    if (art == Handleart::Umgebung)
        throw Laufzeitfehler(FEHLER_ALLGEMEIN, "ODBC", "ODBC kann nicht gestartet werden.");
    pruefe(ergebnis, art == Handleart::Verbindung ? Handleart::Umgebung : Handleart::Verbindung, eltern, "ODBC");
}

Handle::~Handle()
{
    SQLFreeHandle(rohArt(art_), roh_);
}

Umgebung::Umgebung() : handle_(Handleart::Umgebung, nullptr)
{
    // A number in the shape of a pointer, as ODBC wants it.
    auto* version = reinterpret_cast<SQLPOINTER>(static_cast<std::uintptr_t>(SQL_OV_ODBC3));
    pruefe(SQLSetEnvAttr(roh(), SQL_ATTR_ODBC_VERSION, version, 0), Handleart::Umgebung, roh(), "ODBC");
}

std::vector<std::string> Umgebung::treiber() const
{
    std::vector<std::string> namen;
    std::array<char16_t, 256> name{};
    std::array<char16_t, 4096> angaben{};
    SQLSMALLINT laenge = 0;
    SQLSMALLINT angabenLaenge = 0;
    const auto weiter = [&](SQLUSMALLINT richtung) {
        return SQL_SUCCEEDED(SQLDriversW(
            roh(), richtung, reinterpret_cast<SQLWCHAR*>(name.data()), static_cast<SQLSMALLINT>(name.size()), &laenge,
            reinterpret_cast<SQLWCHAR*>(angaben.data()), static_cast<SQLSMALLINT>(angaben.size()), &angabenLaenge));
    };
    for (bool da = weiter(SQL_FETCH_FIRST); da; da = weiter(SQL_FETCH_NEXT))
        namen.push_back(ausUtf16(name.data()));
    return namen;
}

} // namespace quelvarn::odbc
