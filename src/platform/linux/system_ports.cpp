#include "platform/system_ports.h"

#include "platform/linux/files.h"
#include "platform/linux/printers.h"
#include "platform/linux/running_programs.h"
#include "platform/linux/world.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace quelvarn {
namespace {

struct LinuxPorts : SystemPorts
{
    explicit LinuxPorts(const std::filesystem::path& drivesFolder) : folder_(drivesFolder) {}

    Clock& clock() override { return clock_; }
    Environment& environment() override { return environment_; }
    Files& files() override { return files_; }
    Drives& drives() override { return drives_; }
    Printers& printers() override { return printers_; }
    RunningPrograms& programs() override { return programs_; }
    DefaultApplication& defaultApplication() override { return defaultApplication_; }

private:
    DriveFolder folder_;
    LinuxClock clock_;
    LinuxEnvironment environment_;
    LinuxFiles files_{folder_};
    LinuxDrives drives_{folder_};
    LinuxPrinters printers_;
    LinuxRunningPrograms programs_{LinuxRunningPrograms::standardFolders()};
    LinuxDefaultApplication defaultApplication_{files_};
};

std::filesystem::path homeFolder()
{
    const char* home = std::getenv("HOME");
    if (home && *home)
        return home;
    const passwd* entry = getpwuid(geteuid());
    return entry ? entry->pw_dir : "/";
}

} // namespace

std::unique_ptr<SystemPorts> systemPorts(const std::filesystem::path& drivesFolder)
{
    return std::make_unique<LinuxPorts>(drivesFolder);
}

std::filesystem::path standardDrivesFolder()
{
    const char* data = std::getenv("XDG_DATA_HOME");
    const std::filesystem::path base = data && *data == '/' ? data : homeFolder() / ".local/share";
    return base / "quelvarn/laufwerke";
}

} // namespace quelvarn
