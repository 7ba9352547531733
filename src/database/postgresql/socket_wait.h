#pragma once

#include <chrono>

namespace quelvarn::postgresql {

enum class SocketEvent { Readable, Writable, Either };

// Waits until something can be done with the socket, or it turns out to be broken. False when the time is over, or a
// signal came first.
bool waitForSocket(int socket, SocketEvent event, std::chrono::milliseconds time);

} // namespace quelvarn::postgresql
