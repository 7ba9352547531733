#pragma once

#include <chrono>
#include <string>

struct pg_conn;

namespace quelvarn::postgresql {

// Begins to connect to the server of this address, and does not wait for it. The caller finishes the connection.
pg_conn* startConnection(const std::string& address);

// How long the server may be silent: the driver heeds `connect_timeout` of the address only where it waits itself. The
// limit for each of the address's hosts together.
std::chrono::milliseconds silenceLimit(pg_conn* connection);

} // namespace quelvarn::postgresql
