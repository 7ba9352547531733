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
static_assert(sizeof(SQLRETURN) == sizeof(Result));

SQLSMALLINT rawKind(HandleKind kind)
{
    if (kind == HandleKind::Environment)
        return SQL_HANDLE_ENV;
    return kind == HandleKind::ConnectionHandle ? SQL_HANDLE_DBC : SQL_HANDLE_STMT;
}

constexpr int ATTEMPTS = 6;
constexpr auto PAUSE = std::chrono::milliseconds(100);

// What the driver tells of the last call on a handle.
Failure informationOf(HandleKind kind, RawHandle handle)
{
    Failure information{.sqlstate = "", .number = 0, .words = "Der ODBC-Treiber nennt keinen Grund."};
    std::array<char16_t, 6> status{};
    std::array<char16_t, 1024> text{};
    SQLINTEGER number = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN result =
        SQLGetDiagRecW(rawKind(kind), handle, 1, reinterpret_cast<SQLWCHAR*>(status.data()), &number,
                       reinterpret_cast<SQLWCHAR*>(text.data()), static_cast<SQLSMALLINT>(text.size()), &length);
    if (SQL_SUCCEEDED(result))
        information = {fromUtf16(status.data()), number, fromUtf16(text.data())};
    return information;
}

bool succeeded(Result result)
{
    return SQL_SUCCEEDED(result) || result == SQL_NO_DATA;
}

} // namespace

void check(Result result, HandleKind kind, RawHandle handle, const Place& place)
{
    if (!succeeded(result))
        throw faultOf(informationOf(kind, handle), place);
}

Result repeat(const std::function<Result()>& call, HandleKind kind, RawHandle handle)
{
    for (int attempt = 1;; ++attempt) {
        const Result result = call();
        if (succeeded(result) || attempt == ATTEMPTS || !isHeld(informationOf(kind, handle)))
            return result;
        std::this_thread::sleep_for(PAUSE);
    }
}

Handle::Handle(HandleKind kind, RawHandle parent) : kind_(kind)
{
    const SQLRETURN result = SQLAllocHandle(rawKind(kind), parent, &raw_);
    if (SQL_SUCCEEDED(result))
        return;
    if (kind == HandleKind::Environment)
        throw RuntimeError(FAULT_GENERAL, "ODBC", "ODBC kann nicht gestartet werden.");
    check(result, kind == HandleKind::ConnectionHandle ? HandleKind::Environment : HandleKind::ConnectionHandle, parent,
          {});
}

Handle::~Handle()
{
    SQLFreeHandle(rawKind(kind_), raw_);
}

void* asPointer(std::uintptr_t number)
{
    return reinterpret_cast<void*>(number); // NOLINT(performance-no-int-to-ptr)
}

Environment::Environment() : handle_(HandleKind::Environment, nullptr)
{
    check(SQLSetEnvAttr(raw(), SQL_ATTR_ODBC_VERSION, asPointer(SQL_OV_ODBC3), 0), HandleKind::Environment, raw(), {});
}

std::vector<std::string> Environment::driver() const
{
    std::vector<std::string> names;
    std::array<char16_t, 256> name{};
    std::array<char16_t, 4096> details{};
    SQLSMALLINT length = 0;
    SQLSMALLINT detailsLength = 0;
    const auto further = [&](SQLUSMALLINT direction) {
        return SQL_SUCCEEDED(SQLDriversW(
            raw(), direction, reinterpret_cast<SQLWCHAR*>(name.data()), static_cast<SQLSMALLINT>(name.size()), &length,
            reinterpret_cast<SQLWCHAR*>(details.data()), static_cast<SQLSMALLINT>(details.size()), &detailsLength));
    };
    for (bool there = further(SQL_FETCH_FIRST); there; there = further(SQL_FETCH_NEXT))
        names.push_back(fromUtf16(name.data()));
    return names;
}

} // namespace quelvarn::odbc
