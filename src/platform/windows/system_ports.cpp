#include "platform/system_ports.h"

#include "platform/windows/files.h"
#include "platform/windows/printers.h"
#include "platform/windows/running_programs.h"
#include "platform/windows/world.h"

#include <windows.h>

namespace quelvarn {
namespace {

struct WindowsPorts : SystemPorts
{
    // A drive without a disk is an answer, not a message box of the system.
    WindowsPorts() { SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX); }

    Uhr& uhr() override { return uhr_; }
    Umgebung& umgebung() override { return umgebung_; }
    Dateien& dateien() override { return dateien_; }
    Laufwerke& laufwerke() override { return laufwerke_; }
    Drucker& drucker() override { return drucker_; }
    LaufendeProgramme& programme() override { return programme_; }
    Standardanwendung& standardanwendung() override { return standardanwendung_; }

private:
    WindowsUhr uhr_;
    WindowsUmgebung umgebung_;
    WindowsDateien dateien_;
    WindowsLaufwerke laufwerke_;
    WindowsDrucker drucker_;
    WindowsLaufendeProgramme programme_;
    WindowsStandardanwendung standardanwendung_{dateien_};
};

} // namespace

std::unique_ptr<SystemPorts> systemPorts(const std::filesystem::path& /*laufwerkeOrdner*/)
{
    return std::make_unique<WindowsPorts>();
}

std::filesystem::path standardLaufwerkeOrdner()
{
    return {};
}

} // namespace quelvarn
