#include "database/postgresql/socket_wait.h"

#include <poll.h>

namespace quelvarn::postgresql {

bool waitForSocket(int socket, SocketEvent event, std::chrono::milliseconds time)
{
    pollfd asked{socket, 0, 0};
    if (event != SocketEvent::Writable)
        asked.events |= POLLIN;
    if (event != SocketEvent::Readable)
        asked.events |= POLLOUT;
    return poll(&asked, 1, static_cast<int>(time.count())) > 0;
}

} // namespace quelvarn::postgresql
