#include "app/application.h"
#include "app/command_line.h"
#include "app/end_request.h"
#include "platform/system_ports.h"
#include "session/program.h"
#include "ui/adapters/clipboard_qt.h"
#include "ui/adapters/messages_qt.h"
#include "ui/adapters/patience_qt.h"
#include "ui/adapters/progress_qt.h"
#include "ui/busy_pointer.h"
#include "ui/guard.h"
#include "ui/main_window/mdi_form1.h"
#include "ui/theme/appearance.h"
#include "ui/workplace.h"

#include <cstdlib>
#include <memory>
#include <optional>

using namespace quelvarn;

namespace {

// The order of a program's end is settled before this; what is still in memory goes with the process.
[[noreturn]] void beendeSofort()
{
    std::_Exit(EXIT_SUCCESS);
}

// Nobody is there to answer, or to wait: as if the window had been closed. False while a wait or long work is being
// given up.
bool endUnattended(QtMeldungen& boxes, QtPatience& patience, QtFortschritt& progress, Arbeitsplatz* workplace)
{
    boxes.answerAlone();
    patience.waitAlone();
    if (!workplace)
        beendeSofort(); // Nothing has been done yet.
    if (QtPatience::isAsking()) {
        patience.giveUp();
        return false;
    }
    if (progress.atWork()) {
        progress.giveUp();
        return false;
    }
    workplace->fenster().close();
    return true;
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
    session.Verbindung.setPatience(&patience);

    Waechter waechter(meldungen, beendeSofort);
    std::unique_ptr<Arbeitsplatz> arbeitsplatz;
    const EndRequest endRequest([&] { return endUnattended(meldungen, patience, fortschritt, arbeitsplatz.get()); });
    waechter.fuehreAus([&] {
        const Sanduhr warten;
        Main(session, ports);
    });
    arbeitsplatz = std::make_unique<Arbeitsplatz>(session, ports, darstellung, beendeSofort);
    return arbeitsplatz->starte() ? Anwendung::exec() : EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (const std::optional<int> answered = answerWithoutWindow(argc, argv))
        return *answered;
    std::optional<DisplayCheck> displayCheck(std::in_place);
    Anwendung anwendung(argc, argv);
    displayCheck.reset();
    if (const std::optional<int> refused = refuseUnknownArguments())
        return *refused;
    return openWindow(anwendung);
}
