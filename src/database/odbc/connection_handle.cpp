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

ConnectionHandle::ConnectionHandle() : handle_(HandleKind::ConnectionHandle, environment_.raw()) {}

std::shared_ptr<ConnectionHandle> ConnectionHandle::open(std::string_view text, std::string path)
{
    std::shared_ptr<ConnectionHandle> connection(new ConnectionHandle);
    connection->place_.path = std::move(path);
    std::u16string wide = toUtf16(text);
    const auto connect = [&]() -> Result {
        return SQLDriverConnectW(connection->raw(), nullptr, reinterpret_cast<SQLWCHAR*>(wide.data()), SQL_NTS, nullptr,
                                 0, nullptr, SQL_DRIVER_NOPROMPT);
    };
    check(repeat(connect, HandleKind::ConnectionHandle, connection->raw()), HandleKind::ConnectionHandle,
          connection->raw(), connection->place_);
    return connection;
}

ConnectionHandle::~ConnectionHandle()
{
    SQLEndTran(SQL_HANDLE_DBC, raw(), SQL_ROLLBACK); // A driver may refuse to leave an open transaction.
    SQLDisconnect(raw());
}

std::string ConnectionHandle::databaseName() const
{
    std::array<char16_t, 128> name{};
    SQLSMALLINT length = 0;
    const SQLRETURN result = SQLGetInfoW(raw(), SQL_DBMS_NAME, name.data(),
                                         static_cast<SQLSMALLINT>(name.size() * sizeof(char16_t)), &length);
    check(result, HandleKind::ConnectionHandle, raw(), place_);
    return fromUtf16(name.data());
}

void ConnectionHandle::setAutomatic(bool on)
{
    void* value = asPointer(on ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF);
    check(SQLSetConnectAttrW(raw(), SQL_ATTR_AUTOCOMMIT, value, SQL_IS_UINTEGER), HandleKind::ConnectionHandle, raw(),
          place_);
}

void ConnectionHandle::begin()
{
    setAutomatic(false);
}

void ConnectionHandle::end(bool adopt)
{
    const auto close = [&]() -> Result { return SQLEndTran(SQL_HANDLE_DBC, raw(), adopt ? SQL_COMMIT : SQL_ROLLBACK); };
    check(repeat(close, HandleKind::ConnectionHandle, raw()), HandleKind::ConnectionHandle, raw(), place_);
    setAutomatic(true);
}

} // namespace quelvarn::odbc
