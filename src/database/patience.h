#pragma once

#include <chrono>

namespace quelvarn {

enum class WaitReason { Lock, Server };

// Asked while an engine waits for somebody else: for a lock of another program, or for the answer of a server.
// No statement may run on the same connection from within it.
class Patience
{
public:
    virtual ~Patience() = default;
    // False gives up. Asked some twenty times a second, with the time waited so far.
    virtual bool keepWaiting(WaitReason reason, std::chrono::milliseconds waited) = 0;
};

} // namespace quelvarn
