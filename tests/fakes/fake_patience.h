#pragma once

#include "database/patience.h"

#include <functional>
#include <optional>

namespace quelvarn {

// Gives up at the question after `questions`.
class FakePatience : public Patience
{
public:
    explicit FakePatience(int questions) : questions_(questions) {}

    bool keepWaiting(WaitReason reason, std::chrono::milliseconds waited) override
    {
        ++asked;
        lastReason = reason;
        if (!firstAsked)
            firstAsked = waited;
        if (during)
            during();
        return asked <= questions_;
    }
    void waitEnded() override { ++ended; }

    int asked = 0;
    int ended = 0;
    std::optional<WaitReason> lastReason;
    std::optional<std::chrono::milliseconds> firstAsked;
    std::function<void()> during;

private:
    int questions_;
};

} // namespace quelvarn
