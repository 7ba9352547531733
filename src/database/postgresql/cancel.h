#pragma once

struct pg_conn;

namespace quelvarn::postgresql {

// Asks the server to end the statement under way. Nobody waits for that: the server may not answer at all.
void cancelInBackground(pg_conn* connection);

} // namespace quelvarn::postgresql
