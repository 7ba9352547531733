#pragma once

#include "platform/running_programs.h"

#include <memory>

namespace quelvarn {

// The captions in the system's list of top-level windows. A caption that several windows of one process bear counts
// once, so the program's own is told exactly once whether or not its real window is there yet.
class WindowsRunningPrograms : public RunningPrograms
{
public:
    WindowsRunningPrograms();
    ~WindowsRunningPrograms() override;

    std::vector<std::string> windowTitles() const override;
    // Shows the caption on an invisible window of its own. To be called on one thread, which has a message loop.
    void ownTitle(std::string_view title) override;

private:
    class Display;
    std::unique_ptr<Display> display_;
};

} // namespace quelvarn
