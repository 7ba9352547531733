#pragma once

#include "database/faults.h"

#include <string>
#include <string_view>

struct pg_conn;
struct pg_result;

namespace quelvarn::postgresql {

// A server that says nothing. To ask it again would only take the same time once more.
class ServerSilent : public DatabaseFault
{
public:
    using DatabaseFault::DatabaseFault;
};

// What the connection leads to, as an address without a password; known also when it could not be made.
std::string addressOf(pg_conn* connection);

// Of an answer that tells a fault. `sqlstate` may be empty.
FaultKind kindOf(std::string_view sqlstate);
std::string_view sqlstateOf(const pg_result* answer);
// The server has closed the connection behind this answer.
bool endsConnection(const pg_result* answer);

// `words`: the engine's own.
DatabaseFault serverFault(FaultKind kind, std::string_view sqlstate, std::string_view where, std::string_view words);
// Of a connection that could not be made, with PQERRORS_VERBOSE set: only then the text tells the SQLSTATE.
DatabaseFault connectFault(pg_conn* connection);

} // namespace quelvarn::postgresql
