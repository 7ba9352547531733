#include "database/postgresql/connect_start.h"

#include "database/postgresql/text_values.h"

#include <algorithm>
#include <array>
#include <libpq-fe.h>

namespace quelvarn::postgresql {
namespace {

constexpr const char* defaultLimit = "15"; // seconds

// What stands in the address wins over what stands in front of it here. A host that is gone is found out by the
// system where it can, also in the middle of long work.
constexpr std::array<const char*, 8> namesInFront{
    "connect_timeout",  "fallback_application_name", "keepalives_idle", "keepalives_interval",
    "keepalives_count", "tcp_user_timeout",          "dbname",          "client_encoding"};
constexpr std::array<const char*, 6> valuesInFront{defaultLimit, "Quelvarn", "15", "5", "3", "15000"};

} // namespace

PGconn* startConnection(const std::string& address)
{
    std::array<const char*, namesInFront.size() + 1> names{};
    std::array<const char*, namesInFront.size() + 1> values{};
    std::ranges::copy(namesInFront, names.begin());
    auto* behind = std::ranges::copy(valuesInFront, values.begin()).out;
    *behind++ = address.c_str();
    *behind = "UTF8";
    return PQconnectStartParams(names.data(), values.data(), 1);
}

std::chrono::milliseconds silenceLimit(PGconn* connection)
{
    PQconninfoOption* options = PQconninfo(connection);
    std::int64_t seconds = 0;
    std::int64_t hosts = 1;
    for (const PQconninfoOption* o = options; o && o->keyword; ++o) {
        const std::string_view value = o->val ? o->val : "";
        if (std::string_view(o->keyword) == "connect_timeout")
            seconds = std::max<std::int64_t>(integerFrom(value).value_or(0), 0);
        if (std::string_view(o->keyword) == "host")
            hosts += std::ranges::count(value, ',');
    }
    PQconninfoFree(options);
    return std::chrono::seconds(seconds * hosts);
}

} // namespace quelvarn::postgresql
