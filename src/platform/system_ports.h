#pragma once

#include "platform/ports.h"

#include <filesystem>
#include <memory>

namespace quelvarn {

// The real outside world, but for message boxes, progress and the clipboard, which belong to the windows.
struct SystemPorts
{
    virtual ~SystemPorts() = default;

    virtual Uhr& uhr() = 0;
    virtual Umgebung& umgebung() = 0;
    virtual Dateien& dateien() = 0;
    virtual Laufwerke& laufwerke() = 0;
    virtual Drucker& drucker() = 0;
    virtual LaufendeProgramme& programme() = 0;
    virtual Standardanwendung& standardanwendung() = 0;

    Ports mit(Meldungen& meldungen, Zwischenablage& zwischenablage, Fortschrittsanzeige& fortschritt)
    {
        return {meldungen, uhr(),       umgebung(),     dateien(),           laufwerke(),
                drucker(), programme(), zwischenablage, standardanwendung(), fortschritt};
    }
};

// The folder of drive links is made when it is missing. Where the system has drives it is not needed.
std::unique_ptr<SystemPorts> systemPorts(const std::filesystem::path& laufwerkeOrdner);

// The folder of drive links in the user's own data.
std::filesystem::path standardLaufwerkeOrdner();

} // namespace quelvarn
