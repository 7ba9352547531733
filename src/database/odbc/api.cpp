#include "database/odbc/api.h"

#ifdef _WIN32
#include <windows.h>
#endif
#include "base/runtime_error.h"
#include "base/utf16.h"
#include "database/catalog.h"

#include <algorithm>
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
// What Access calls a file, a row or a table that another program holds, and SQLite its file.
constexpr std::array<SQLINTEGER, 6> BELEGT{-1024, -1032, -3976, -1102, -1302, 5};

// What the driver tells of the last call on a handle.
struct Auskunft
{
    std::array<char16_t, 6> status{};
    SQLINTEGER nummer = 0;
    std::string text = "Der ODBC-Treiber nennt keinen Grund.";

    bool anweisungFalsch() const { return status[0] == u'4' && status[1] == u'2'; } // Syntax or access rule.
    bool belegt() const { return std::ranges::find(BELEGT, nummer) != BELEGT.end(); }
};

Auskunft auskunftOf(Handleart art, RohHandle handle)
{
    Auskunft auskunft;
    std::array<char16_t, 1024> text{};
    SQLSMALLINT laenge = 0;
    const SQLRETURN ergebnis =
        SQLGetDiagRecW(rohArt(art), handle, 1, reinterpret_cast<SQLWCHAR*>(auskunft.status.data()), &auskunft.nummer,
                       reinterpret_cast<SQLWCHAR*>(text.data()), static_cast<SQLSMALLINT>(text.size()), &laenge);
    if (SQL_SUCCEEDED(ergebnis))
        auskunft.text = fromUtf16(text.data());
    return auskunft;
}

bool gelungen(Ergebnis ergebnis)
{
    return SQL_SUCCEEDED(ergebnis) || ergebnis == SQL_NO_DATA;
}

} // namespace

void pruefe(Ergebnis ergebnis, Handleart art, RohHandle handle, std::string_view quelle)
{
    if (gelungen(ergebnis))
        return;
    Auskunft auskunft = auskunftOf(art, handle);
    if (auskunft.belegt())
        auskunft.text = "Die Datenbank oder der Datensatz ist durch ein anderes Programm gesperrt, oder es fehlt das "
                        "Recht zum Schreiben.\n" +
                        auskunft.text;
    throw Laufzeitfehler(auskunft.anweisungFalsch() ? FEHLER_ANWEISUNG : FEHLER_ALLGEMEIN, std::string(quelle),
                         auskunft.text);
}

Ergebnis wiederhole(const std::function<Ergebnis()>& aufruf, Handleart art, RohHandle handle)
{
    for (int versuch = 1;; ++versuch) {
        const Ergebnis ergebnis = aufruf();
        if (gelungen(ergebnis) || versuch == VERSUCHE || !auskunftOf(art, handle).belegt())
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
    pruefe(ergebnis, art == Handleart::Verbindung ? Handleart::Umgebung : Handleart::Verbindung, eltern, "ODBC");
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
    pruefe(SQLSetEnvAttr(roh(), SQL_ATTR_ODBC_VERSION, alsZeiger(SQL_OV_ODBC3), 0), Handleart::Umgebung, roh(), "ODBC");
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
