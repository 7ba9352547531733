#include "database/odbc/connection_handle.h"

#ifdef _WIN32
#include <windows.h>
#endif
#include "base/utf16.h"

#include <array>
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>
#include <utility>

namespace quelvarn::odbc {

Verbindung::Verbindung() : handle_(Handleart::Verbindung, umgebung_.roh()) {}

std::shared_ptr<Verbindung> Verbindung::oeffne(std::string_view text, std::string path)
{
    std::shared_ptr<Verbindung> verbindung(new Verbindung);
    verbindung->place_.path = std::move(path);
    std::u16string breit = toUtf16(text);
    const auto verbinde = [&]() -> Ergebnis {
        return SQLDriverConnectW(verbindung->roh(), nullptr, reinterpret_cast<SQLWCHAR*>(breit.data()), SQL_NTS,
                                 nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    };
    pruefe(wiederhole(verbinde, Handleart::Verbindung, verbindung->roh()), Handleart::Verbindung, verbindung->roh(),
           verbindung->place_);
    return verbindung;
}

Verbindung::~Verbindung()
{
    SQLEndTran(SQL_HANDLE_DBC, roh(), SQL_ROLLBACK); // A driver may refuse to leave an open transaction.
    SQLDisconnect(roh());
}

std::string Verbindung::datenbankname() const
{
    std::array<char16_t, 128> name{};
    SQLSMALLINT laenge = 0;
    const SQLRETURN ergebnis = SQLGetInfoW(roh(), SQL_DBMS_NAME, name.data(),
                                           static_cast<SQLSMALLINT>(name.size() * sizeof(char16_t)), &laenge);
    pruefe(ergebnis, Handleart::Verbindung, roh(), place_);
    return fromUtf16(name.data());
}

void Verbindung::setzeAutomatik(bool an)
{
    void* wert = alsZeiger(an ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF);
    pruefe(SQLSetConnectAttrW(roh(), SQL_ATTR_AUTOCOMMIT, wert, SQL_IS_UINTEGER), Handleart::Verbindung, roh(), place_);
}

void Verbindung::beginne()
{
    setzeAutomatik(false);
}

void Verbindung::beende(bool uebernehmen)
{
    const auto schliesse = [&]() -> Ergebnis {
        return SQLEndTran(SQL_HANDLE_DBC, roh(), uebernehmen ? SQL_COMMIT : SQL_ROLLBACK);
    };
    pruefe(wiederhole(schliesse, Handleart::Verbindung, roh()), Handleart::Verbindung, roh(), place_);
    setzeAutomatik(true);
}

} // namespace quelvarn::odbc
