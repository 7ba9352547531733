#pragma once

#include <chrono>
#include <string>

namespace quelvarn {

enum class WaitReason { Lock, Server };

// What a person reads meanwhile.
std::string waitingText(WaitReason reason, std::chrono::milliseconds waited);

// Asked while an engine waits for somebody else: for a lock of another program, or for the answer of a server.
// No statement may run on the same connection from within it.
class Patience
{
public:
    virtual ~Patience() = default;
    // False gives up. Asked some twenty times a second, with the time waited so far.
    virtual bool keepWaiting(WaitReason reason, std::chrono::milliseconds waited) = 0;
    // The wait has ended for which keepWaiting was asked, in whatever way.
    virtual void waitEnded() {}
};

} // namespace quelvarn
