#include "app/application.h"
#include "app/command_line.h"
#include "app/end_signals.h"
#include "app/screen_watch.h"
#include "app/tell_caller.h"
#include "platform/system_ports.h"
#include "session/program_start.h"
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
[[noreturn]] void endAtOnce()
{
    std::_Exit(EXIT_SUCCESS);
}

int openWindow(Application& application)
{
    Appearance appearance;
    appearance.apply(application);

    QtBoxes boxes;
    QtClipboard clipboard;
    QtProgress progress;
    QtPatience patience;
    const auto system = systemPorts(standardDrivesFolder());
    Ports ports = system->with(boxes, clipboard, progress);
    SessionState session;
    session.database.connection.setPatience(&patience);

    SlotGuard slotGuard(boxes, endAtOnce);
    ProgramEnd programEnd(boxes, patience, progress);
    const EndSignals signals([&programEnd] { programEnd.request(); });
    slotGuard.execute([&] {
        const BusyCursor wait;
        Main(session, ports);
    });
    Workplace workplace(session, ports, appearance, endAtOnce);
    programEnd.setWindow(workplace.window(), [&workplace] { workplace.end(); });
    return workplace.start() ? Application::exec() : EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (const std::optional<Reply> reply = answerTo(argc, argv)) {
        tellCaller(*reply);
        return reply->exitCode;
    }
    std::optional<ScreenWatch> screen(std::in_place);
    Application application(argc, argv);
    screen.reset();
    return openWindow(application);
}
