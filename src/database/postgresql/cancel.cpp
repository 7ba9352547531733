#include "database/postgresql/cancel.h"

#include <array>
#include <libpq-fe.h>
#include <memory>
#include <system_error>
#include <thread>

namespace quelvarn::postgresql {

void cancelInBackground(pg_conn* connection)
{
    const std::shared_ptr<PGcancel> cancel(PQgetCancel(connection), PQfreeCancel);
    if (!cancel)
        return;
    try {
        std::thread([cancel] {
            std::array<char, 256> words{};
            PQcancel(cancel.get(), words.data(), static_cast<int>(words.size()));
        }).detach();
    } catch (const std::system_error&) {
        return; // The server finds out by itself that nobody listens any more.
    }
}

} // namespace quelvarn::postgresql
