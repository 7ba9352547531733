#include "database/odbc/api.h"

#ifdef _WIN32
#include <windows.h>
#endif
#include "base/runtime_error.h"
#include "base/utf16.h"
#include "database/catalog.h"

#include <array>
#include <chrono>
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>
#include <thread>

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

constexpr int VERSUCHE = 6;
constexpr auto PAUSE = std::chrono::milliseconds(100);

// What the driver tells of the last call on a handle.
Failure auskunftOf(Handleart art, RohHandle handle)
{
    Failure auskunft{.sqlstate = "", .number = 0, .words = "Der ODBC-Treiber nennt keinen Grund."};
    std::array<char16_t, 6> status{};
    std::array<char16_t, 1024> text{};
    SQLINTEGER nummer = 0;
    SQLSMALLINT laenge = 0;
    const SQLRETURN ergebnis =
        SQLGetDiagRecW(rohArt(art), handle, 1, reinterpret_cast<SQLWCHAR*>(status.data()), &nummer,
                       reinterpret_cast<SQLWCHAR*>(text.data()), static_cast<SQLSMALLINT>(text.size()), &laenge);
    if (SQL_SUCCEEDED(ergebnis))
        auskunft = {fromUtf16(status.data()), nummer, fromUtf16(text.data())};
    return auskunft;
}

bool gelungen(Ergebnis ergebnis)
{
    return SQL_SUCCEEDED(ergebnis) || ergebnis == SQL_NO_DATA;
}

} // namespace

void pruefe(Ergebnis ergebnis, Handleart art, RohHandle handle, const Place& place)
{
    if (!gelungen(ergebnis))
        throw faultOf(auskunftOf(art, handle), place);
}

Ergebnis wiederhole(const std::function<Ergebnis()>& aufruf, Handleart art, RohHandle handle)
{
    for (int versuch = 1;; ++versuch) {
        const Ergebnis ergebnis = aufruf();
        if (gelungen(ergebnis) || versuch == VERSUCHE || !isHeld(auskunftOf(art, handle)))
            return ergebnis;
        std::this_thread::sleep_for(PAUSE);
    }
}

Handle::Handle(Handleart art, RohHandle eltern) : art_(art)
{
    const SQLRETURN ergebnis = SQLAllocHandle(rohArt(art), eltern, &roh_);
    if (SQL_SUCCEEDED(ergebnis))
        return;
    if (art == Handleart::Umgebung)
        throw Laufzeitfehler(FEHLER_ALLGEMEIN, "ODBC", "ODBC kann nicht gestartet werden.");
    pruefe(ergebnis, art == Handleart::Verbindung ? Handleart::Umgebung : Handleart::Verbindung, eltern, {});
}

Handle::~Handle()
{
    SQLFreeHandle(rohArt(art_), roh_);
}

void* alsZeiger(std::uintptr_t zahl)
{
    return reinterpret_cast<void*>(zahl); // NOLINT(performance-no-int-to-ptr)
}

Umgebung::Umgebung() : handle_(Handleart::Umgebung, nullptr)
{
    pruefe(SQLSetEnvAttr(roh(), SQL_ATTR_ODBC_VERSION, alsZeiger(SQL_OV_ODBC3), 0), Handleart::Umgebung, roh(), {});
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
        namen.push_back(fromUtf16(name.data()));
    return namen;
}

} // namespace quelvarn::odbc
