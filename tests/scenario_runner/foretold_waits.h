#pragma once

#include "ui/adapters/patience_qt.h"

#include <optional>
#include <string>

namespace quelvarn::scenario {

// The panel of a wait for the database, given up by its button when that was foretold. A wait that was not, and lasts,
// is a difference.
class ForetoldWaits final : public Patience
{
public:
    // The next step waits, and gives up; with a picture of the panel in this file, or none for "".
    void expectGivingUp(std::string pictureFile) { expected_ = std::move(pictureFile); }
    // Throws Difference, and forgets, when a foretold wait did not come or another one did.
    void check();

    bool keepWaiting(WaitReason reason, std::chrono::milliseconds waited) override;
    void waitEnded() override { shown_.waitEnded(); }

private:
    QtPatience shown_;
    std::optional<std::string> expected_;
    std::string fault_;
};

} // namespace quelvarn::scenario
