#include "database/postgresql/socket_wait.h"

#include <winsock2.h>

namespace quelvarn::postgresql {

// WSAPoll does not tell of a connection that was refused on every Windows; select does, as an exception.
bool waitForSocket(int socket, SocketEvent event, std::chrono::milliseconds time)
{
    fd_set readable, writable, broken;
    for (fd_set* set : {&readable, &writable, &broken}) {
        FD_ZERO(set);
        FD_SET(static_cast<SOCKET>(socket), set);
    }
    timeval limit{};
    limit.tv_sec = static_cast<long>(time.count() / 1000);
    limit.tv_usec = static_cast<long>(time.count() % 1000 * 1000);
    return select(0, event == SocketEvent::Writable ? nullptr : &readable,
                  event == SocketEvent::Readable ? nullptr : &writable, &broken, &limit) > 0;
}

} // namespace quelvarn::postgresql
