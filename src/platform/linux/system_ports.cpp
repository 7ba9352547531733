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
    explicit LinuxPorts(const std::filesystem::path& laufwerkeOrdner) : ordner_(laufwerkeOrdner) {}

    Uhr& uhr() override { return uhr_; }
    Umgebung& umgebung() override { return umgebung_; }
    Dateien& dateien() override { return dateien_; }
    Laufwerke& laufwerke() override { return laufwerke_; }
    Drucker& drucker() override { return drucker_; }
    LaufendeProgramme& programme() override { return programme_; }
    Standardanwendung& standardanwendung() override { return standardanwendung_; }

private:
    Laufwerksordner ordner_;
    LinuxUhr uhr_;
    LinuxUmgebung umgebung_;
    LinuxDateien dateien_{ordner_};
    LinuxLaufwerke laufwerke_{ordner_};
    LinuxDrucker drucker_;
    LinuxLaufendeProgramme programme_{LinuxLaufendeProgramme::standardFolders()};
    LinuxStandardanwendung standardanwendung_{dateien_};
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

std::unique_ptr<SystemPorts> systemPorts(const std::filesystem::path& laufwerkeOrdner)
{
    return std::make_unique<LinuxPorts>(laufwerkeOrdner);
}

std::filesystem::path standardLaufwerkeOrdner()
{
    const char* data = std::getenv("XDG_DATA_HOME");
    const std::filesystem::path base = data && *data == '/' ? data : homeFolder() / ".local/share";
    return base / "quelvarn/laufwerke";
}

} // namespace quelvarn
