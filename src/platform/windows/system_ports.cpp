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

    Clock& clock() override { return clock_; }
    Environment& environment() override { return environment_; }
    Files& files() override { return files_; }
    Drives& drives() override { return drives_; }
    Printers& printers() override { return printers_; }
    RunningPrograms& programs() override { return programs_; }
    DefaultApplication& defaultApplication() override { return defaultApplication_; }

private:
    WindowsClock clock_;
    WindowsEnvironment environment_;
    WindowsFiles files_;
    WindowsDrives drives_;
    WindowsPrinters printers_;
    WindowsRunningPrograms programs_;
    WindowsDefaultApplication defaultApplication_{files_};
};

} // namespace

std::unique_ptr<SystemPorts> systemPorts(const std::filesystem::path& /*drivesFolder*/)
{
    return std::make_unique<WindowsPorts>();
}

std::filesystem::path standardDrivesFolder()
{
    return {};
}

} // namespace quelvarn
