#pragma once

#include "platform/running_programs.h"

#include <memory>

namespace quelvarn {

// The captions in the system's list of top-level windows. A caption that several windows of one process bear counts
// once, so the program's own is told exactly once whether or not its real window is there yet.
class WindowsLaufendeProgramme : public LaufendeProgramme
{
public:
    WindowsLaufendeProgramme();
    ~WindowsLaufendeProgramme() override;

    std::vector<std::string> fenstertitel() const override;
    // Shows the caption on an invisible window of its own. To be called on one thread, which has a message loop.
    void eigenerTitel(std::string_view titel) override;

private:
    class Anzeige;
    std::unique_ptr<Anzeige> anzeige_;
};

} // namespace quelvarn
