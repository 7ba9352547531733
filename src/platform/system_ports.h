#pragma once

#include "platform/ports.h"

#include <filesystem>
#include <memory>

namespace quelvarn {

// The real outside world, but for message boxes, progress and the clipboard, which belong to the windows.
struct SystemPorts
{
    virtual ~SystemPorts() = default;

    virtual Clock& clock() = 0;
    virtual Environment& environment() = 0;
    virtual Files& files() = 0;
    virtual Drives& drives() = 0;
    virtual Printers& printers() = 0;
    virtual RunningPrograms& programs() = 0;
    virtual DefaultApplication& defaultApplication() = 0;

    Ports with(Boxes& boxes, Clipboard& clipboard, ProgressDisplay& progress)
    {
        return {boxes,      clock(),   environment(),        files(), drives(), printers(),
                programs(), clipboard, defaultApplication(), progress};
    }
};

// The folder of drive links is made when it is missing. Where the system has drives it is not needed.
std::unique_ptr<SystemPorts> systemPorts(const std::filesystem::path& drivesFolder);

// The folder of drive links in the user's own data.
std::filesystem::path standardDrivesFolder();

} // namespace quelvarn
