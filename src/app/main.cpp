#include "app/application.h"
#include "platform/system_ports.h"
#include "session/program.h"
#include "ui/adapters/clipboard_qt.h"
#include "ui/adapters/messages_qt.h"
#include "ui/adapters/progress_qt.h"
#include "ui/busy_pointer.h"
#include "ui/guard.h"
#include "ui/theme/appearance.h"
#include "ui/workplace.h"

#include <cstdlib>

using namespace quelvarn;

namespace {

// The order of a program's end is settled before this; what is still in memory goes with the process.
[[noreturn]] void beendeSofort()
{
    std::_Exit(EXIT_SUCCESS);
}

} // namespace

int main(int argc, char** argv)
{
    Anwendung anwendung(argc, argv);
    Darstellung darstellung;
    darstellung.wendeAn(anwendung);

    QtMeldungen meldungen;
    QtZwischenablage zwischenablage;
    QtFortschritt fortschritt;
    const auto system = systemPorts(standardLaufwerkeOrdner());
    Ports ports = system->mit(meldungen, zwischenablage, fortschritt);
    SessionState session;

    Waechter waechter(meldungen, beendeSofort);
    bool weiter = false;
    waechter.fuehreAus([&] {
        const Sanduhr warten;
        weiter = Main(session, ports);
    });
    if (!weiter)
        return EXIT_FAILURE;
    Arbeitsplatz arbeitsplatz(session, ports, darstellung, beendeSofort);
    return arbeitsplatz.starte() ? Anwendung::exec() : EXIT_SUCCESS;
}
