#include "app/application.h"
#include "app/command_line.h"
#include "app/end_signals.h"
#include "app/screen_watch.h"
#include "platform/system_ports.h"
#include "session/program.h"
#include "ui/adapters/boxes_qt.h"
#include "ui/adapters/clipboard_qt.h"
#include "ui/adapters/patience_qt.h"
#include "ui/adapters/progress_qt.h"
#include "ui/busy_pointer.h"
#include "ui/guard.h"
#include "ui/main_view.h"
#include "ui/main_window/main_window_view.h"
#include "ui/program_end.h"
#include "ui/theme/appearance.h"

#include <cstdlib>
#include <optional>
#include <utility>

using namespace quelvarn;

namespace {

// The order of a program's end is settled before this; what is still in memory goes with the process.
[[noreturn]] void beendeSofort()
{
    std::_Exit(EXIT_SUCCESS);
}

int openWindow(Anwendung& anwendung)
{
    Darstellung darstellung;
    darstellung.wendeAn(anwendung);

    QtMeldungen meldungen;
    QtZwischenablage zwischenablage;
    QtFortschritt fortschritt;
    QtPatience patience;
    const auto system = systemPorts(standardLaufwerkeOrdner());
    Ports ports = system->mit(meldungen, zwischenablage, fortschritt);
    SessionState session;
    session.database.Verbindung.setPatience(&patience);

    Waechter waechter(meldungen, beendeSofort);
    ProgramEnd programEnd(meldungen, patience, fortschritt);
    const EndSignals signals([&programEnd] { programEnd.request(); });
    waechter.fuehreAus([&] {
        const Sanduhr warten;
        Main(session, ports);
    });
    Arbeitsplatz arbeitsplatz(session, ports, darstellung, beendeSofort);
    programEnd.setWindow(arbeitsplatz.fenster(), [&arbeitsplatz] { arbeitsplatz.beende(); });
    return arbeitsplatz.starte() ? Anwendung::exec() : EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (const std::optional<Answer> answer = answerTo(argc, argv)) {
        tellCaller(*answer);
        return answer->exitCode;
    }
    std::optional<ScreenWatch> screen(std::in_place);
    Anwendung anwendung(argc, argv);
    screen.reset();
    return openWindow(anwendung);
}
