#include "database/catalog.h"
#include "database/postgresql/link.h"
#include "database/postgresql/server_faults.h"
#include "database/postgresql/text_values.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
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

// Results come as the program reads them. Compiling plans would take longer than the register's queries.
constexpr const char* settings = "SET client_min_messages = warning;"
                                 "SET datestyle = 'ISO, YMD';"
                                 "SET extra_float_digits = 1;"
                                 "SET standard_conforming_strings = on;"
                                 "SET jit = off";

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

} // namespace

void CloseConnection::operator()(pg_conn* connection) const
{
    PQfinish(connection);
}

Link::Link(std::string_view address, Patience* patience) : address_(address)
{
    rules_.patience = patience;
}

// The driver heeds connect_timeout only where it waits itself: the limit for each of the address's hosts.
void Link::readLimit()
{
    PQconninfoOption* options = PQconninfo(connection_.get());
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
    rules_.limit = std::chrono::seconds(seconds * hosts);
}

void Link::connect()
{
    ifLost_ = {};
    connection_.reset(startConnection(address_));
    where_ = addressOf(connection_.get());
    readLimit();
    PQsetErrorVerbosity(connection_.get(), PQERRORS_VERBOSE);
    auto state = PQstatus(connection_.get()) == CONNECTION_BAD ? PGRES_POLLING_FAILED : PGRES_POLLING_WRITING;
    while (state != PGRES_POLLING_OK) {
        if (state == PGRES_POLLING_FAILED) {
            const DatabaseFault fault = connectFault(connection_.get());
            drop();
            throw fault;
        }
        awaitConnecting(state == PGRES_POLLING_READING ? SocketEvent::Readable : SocketEvent::Writable);
        state = PQconnectPoll(connection_.get());
    }
    PQsetErrorVerbosity(connection_.get(), PQERRORS_DEFAULT);
    PQsetnonblocking(connection_.get(), 1);
    PQsetNoticeProcessor(
        connection_.get(), [](void*, const char*) {}, nullptr);
    send(settings, "");
    answer();
}

void Link::awaitConnecting(SocketEvent event)
{
    WaitEnd end = WaitEnd::GivenUp;
    try {
        end = ServerWait(rules_).wait(PQsocket(connection_.get()), event);
    } catch (...) {
        drop();
        throw;
    }
    if (end == WaitEnd::Ready)
        return;
    drop();
    if (end == WaitEnd::GivenUp)
        throw DatabaseFault(FaultKind::GivenUp, FAULT_GENERAL, "PostgreSQL", where_, "");
    throw ServerSilent(FaultKind::ConnectionLost, FAULT_GENERAL, "PostgreSQL", where_,
                       fmt::format("Die Verbindung zur PostgreSQL-Datenbank kann nicht hergestellt werden.\n"
                                   "Der Server antwortet nicht (gewartet: {} s).",
                                   rules_.limit.count() / 1000));
}

} // namespace quelvarn::postgresql
