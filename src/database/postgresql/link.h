#pragma once

#include "database/postgresql/server_wait.h"
#include "database/value.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>

struct pg_conn;
struct pg_result;

namespace quelvarn::postgresql {

struct DeleteResult
{
    void operator()(pg_result* result) const;
};
using Result = std::unique_ptr<pg_result, DeleteResult>;

struct CloseConnection
{
    void operator()(pg_conn* connection) const;
};

// The connection to a server, and every wait for it. It never blocks for longer than the patience or the limit of
// silence allows (`connect_timeout` of the address, else 15 s). What fails throws DatabaseFault; connected() then tells
// whether the connection went with it. Used by one thread at a time.
class Link
{
public:
    Link(std::string_view address, Patience* patience);

    void setPatience(Patience* patience) { rules_.patience = patience; }
    bool waiting() const { return rules_.asking; }

    void connect();
    bool connected() const { return connection_ != nullptr; }
    // Asked between statements, without asking the server: false when the connection is known to have ended.
    bool alive();
    void drop() { connection_.reset(); }

    // `ifLost` is told when the connection ends before the answer: what is known then of the statement's effect.
    void send(const std::string& sql, std::string_view ifLost);
    void send(const std::string& sql, std::span<const Value> parameters, std::string_view ifLost);
    // The rows of what was sent come one by one.
    void singleRows();
    // The next piece of the answer; null behind the last one.
    Result next();
    // The whole answer: that of the last statement.
    Result answer();
    void drain();

    // Rows of a COPY, and its end; with a reason when it is to fail.
    void sendCopy(std::string_view rows);
    void endCopy(const char* reason);

    std::string parameterStatus(const char* name) const;
    // For a fault that comes from nothing the server said.
    [[noreturn]] void throwLost(std::string_view words) const;

private:
    void awaitConnecting(SocketEvent event);
    void sent(int accepted, std::string_view ifLost);
    void flush();
    void awaitAnswer();
    void pass(ServerWait& wait, SocketEvent event);
    [[noreturn]] void giveUp();
    void checkSilence(ServerWait& wait);
    [[noreturn]] void fail(const pg_result* answer);
    std::string withEffect(std::string_view words) const;

    std::string address_;
    std::string where_;
    std::string_view ifLost_;
    WaitRules rules_;
    std::unique_ptr<pg_conn, CloseConnection> connection_;
};

} // namespace quelvarn::postgresql
