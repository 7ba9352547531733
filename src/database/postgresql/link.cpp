#include "database/postgresql/link.h"

#include "base/text.h"
#include "database/catalog.h"
#include "database/postgresql/cancel.h"
#include "database/postgresql/connect_start.h"
#include "database/postgresql/server_faults.h"
#include "database/sql/column_value.h"

#include <array>
#include <fmt/format.h>
#include <libpq-fe.h>
#include <vector>

namespace quelvarn::postgresql {
namespace {

// Results come as the program reads them. Compiling plans would take longer than the register's queries.
constexpr const char* settings = "SET client_min_messages = warning;"
                                 "SET datestyle = 'ISO, YMD';"
                                 "SET extra_float_digits = 1;"
                                 "SET standard_conforming_strings = on;"
                                 "SET jit = off";

// Parameters as the driver takes them: texts, with a null pointer for Null.
class Parameter
{
public:
    explicit Parameter(std::span<const Value> values)
    {
        texts_.reserve(values.size());
        for (const Value& value : values) {
            texts_.push_back(sql::parameterText(value));
            pointer_.push_back(isNull(value) ? nullptr : texts_.back().c_str());
        }
    }

    int count() const { return static_cast<int>(pointer_.size()); }
    const char* const* pointer() const { return pointer_.data(); }

private:
    std::vector<std::string> texts_;
    std::vector<const char*> pointer_;
};

bool isFault(const PGresult* answer)
{
    const ExecStatusType status = PQresultStatus(answer);
    return status == PGRES_FATAL_ERROR || status == PGRES_BAD_RESPONSE;
}

} // namespace

void DeleteResult::operator()(pg_result* result) const
{
    PQclear(result);
}

void CloseConnection::operator()(pg_conn* connection) const
{
    PQfinish(connection);
}

Link::Link(std::string_view address, Patience* patience) : address_(address)
{
    rules_.patience = patience;
}

void Link::connect()
{
    ifLost_ = {};
    connection_.reset(startConnection(address_));
    where_ = addressOf(connection_.get());
    rules_.limit = silenceLimit(connection_.get());
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

bool Link::alive()
{
    // What came unasked is a notice, or the server's last words and the end of the connection behind them.
    constexpr int pieces = 4;
    constexpr std::chrono::milliseconds noTime{0};
    for (int i = 0; i < pieces && connection_; ++i) {
        if (PQstatus(connection_.get()) != CONNECTION_OK)
            return false;
        if (!waitForSocket(PQsocket(connection_.get()), SocketEvent::Readable, noTime))
            return true;
        if (!PQconsumeInput(connection_.get()))
            return false;
    }
    return connected();
}

void Link::send(const std::string& sql, std::string_view ifLost)
{
    sent(PQsendQuery(connection_.get(), sql.c_str()), ifLost);
}

void Link::send(const std::string& sql, std::span<const Value> parameters, std::string_view ifLost)
{
    const Parameter p(parameters);
    sent(PQsendQueryParams(connection_.get(), sql.c_str(), p.count(), nullptr, p.pointer(), nullptr, nullptr, 0),
         ifLost);
}

void Link::sent(int accepted, std::string_view ifLost)
{
    ifLost_ = ifLost;
    if (!accepted)
        fail(nullptr);
    flush();
}

void Link::singleRows()
{
    PQsetSingleRowMode(connection_.get());
}

void Link::flush()
{
    int left = PQflush(connection_.get());
    if (left > 0) {
        ServerWait wait(rules_);
        for (; left > 0; left = PQflush(connection_.get()))
            pass(wait, SocketEvent::Either); // The server may speak first, and take more only then.
    }
    if (left < 0)
        fail(nullptr);
}

void Link::awaitAnswer()
{
    ServerWait wait(rules_);
    do
        pass(wait, SocketEvent::Readable);
    while (PQisBusy(connection_.get()));
}

void Link::pass(ServerWait& wait, SocketEvent event)
{
    WaitEnd end = WaitEnd::Silent;
    while (end == WaitEnd::Silent) {
        try {
            end = wait.wait(PQsocket(connection_.get()), event);
        } catch (...) {
            drop(); // In the middle of a statement it is of no use.
            throw;
        }
        if (end == WaitEnd::GivenUp)
            giveUp();
        if (end == WaitEnd::Silent)
            checkSilence(wait);
    }
    if (!PQconsumeInput(connection_.get()))
        fail(nullptr);
    wait.restart();
}

void Link::giveUp()
{
    cancelInBackground(connection_.get());
    drop();
    throw DatabaseFault(FaultKind::GivenUp, FAULT_GENERAL, "PostgreSQL", where_, withEffect(""));
}

// Long work and a server that hangs look the same on the connection. One that still greets others is at work.
void Link::checkSilence(ServerWait& wait)
{
    const std::string seconds = std::to_string(rules_.limit.count() / 1000);
    const std::array<const char*, 4> names{"connect_timeout", "dbname", "connect_timeout", nullptr};
    const std::array<const char*, 4> values{"15", address_.c_str(), seconds.c_str(), nullptr};
    const PGPing ping = PQpingParams(names.data(), values.data(), 1);
    if (ping == PQPING_OK || ping == PQPING_REJECT)
        return wait.restart();
    drop();
    throw ServerSilent(FaultKind::ConnectionLost, FAULT_GENERAL, "PostgreSQL", where_,
                       withEffect(fmt::format("Der Server antwortet nicht (gewartet: {} s).", seconds)));
}

Result Link::next()
{
    if (PQisBusy(connection_.get()))
        awaitAnswer();
    Result piece(PQgetResult(connection_.get()));
    if (piece && isFault(piece.get()))
        fail(piece.get());
    return piece;
}

Result Link::answer()
{
    Result last;
    while (Result piece = next()) {
        last = std::move(piece);
        if (PQresultStatus(last.get()) == PGRES_COPY_IN)
            break; // The server waits for rows.
    }
    return last;
}

void Link::drain()
{
    while (connection_) {
        if (PQisBusy(connection_.get()))
            awaitAnswer();
        const Result piece(PQgetResult(connection_.get()));
        if (!piece || PQresultStatus(piece.get()) == PGRES_COPY_IN)
            return;
    }
}

void Link::sendCopy(std::string_view rows)
{
    if (!alive()) // The driver would swallow all further rows, and tell at the end.
        fail(nullptr);
    int taken = 0;
    while ((taken = PQputCopyData(connection_.get(), rows.data(), static_cast<int>(rows.size()))) == 0)
        flush();
    if (taken < 0)
        fail(nullptr);
    flush();
}

void Link::endCopy(const char* reason)
{
    if (!connected())
        throwLost("");
    int taken = 0;
    while ((taken = PQputCopyEnd(connection_.get(), reason)) == 0)
        flush();
    if (taken < 0)
        fail(nullptr);
    flush();
    answer();
}

std::string Link::parameterStatus(const char* name) const
{
    const char* text = connection_ ? PQparameterStatus(connection_.get(), name) : nullptr;
    return text ? text : "";
}

void Link::throwLost(std::string_view words) const
{
    throw serverFault(FaultKind::ConnectionLost, "", where_, words);
}

std::string Link::withEffect(std::string_view words) const
{
    return std::string(ifLost_) + (ifLost_.empty() ? "" : "\n") + std::string(trim(words));
}

void Link::fail(const pg_result* answer)
{
    const std::string sqlstate(sqlstateOf(answer));
    const std::string words = answer ? PQresultErrorMessage(answer) : PQerrorMessage(connection_.get());
    const bool over = endsConnection(answer) || PQstatus(connection_.get()) != CONNECTION_OK;
    FaultKind kind = kindOf(sqlstate);
    if (!over) {
        drain();
        throw serverFault(kind, sqlstate, where_, words);
    }
    drop();
    if (kind == FaultKind::Other)
        kind = FaultKind::ConnectionLost;
    throw serverFault(kind, sqlstate, where_, withEffect(words));
}

} // namespace quelvarn::postgresql
