#pragma once

#include "database/patience.h"
#include "database/postgresql/socket_wait.h"

#include <chrono>

namespace quelvarn::postgresql {

struct WaitRules
{
    Patience* patience = nullptr;       // Decides alone when there is one.
    std::chrono::milliseconds limit{0}; // Without one: how long the server may say nothing. 0: for ever.
    bool asking = false;                // The patience is being asked; no statement may run.
};

enum class WaitEnd { Ready, GivenUp, Silent };

// The wait for one sign of a server.
class ServerWait
{
public:
    explicit ServerWait(WaitRules& rules);
    ~ServerWait();
    ServerWait(const ServerWait&) = delete;
    ServerWait& operator=(const ServerWait&) = delete;

    WaitEnd wait(int socket, SocketEvent event);
    void restart() { begin_ = std::chrono::steady_clock::now(); } // A sign came.

private:
    bool ask(std::chrono::milliseconds waited);

    WaitRules& rules_;
    std::chrono::steady_clock::time_point begin_;
    bool asked_ = false;
};

} // namespace quelvarn::postgresql
