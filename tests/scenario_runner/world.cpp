#include "scenario_runner/world.h"

#include "base/runtime_error.h"
#include "fakes/fake_world.h"
#include "fakes/temp_folder.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "platform/system_ports.h"
#include "scenario_runner/controls.h"
#include "scenario_runner/disk.h"
#include "scenario_runner/lock_holder.h"
#include "session/program_start.h"
#include "ui/adapters/progress_qt.h"
#include "ui/guard.h"
#include "ui/main_view.h"
#include "ui/main_window/main_window_view.h"
#include "ui/theme/appearance.h"

#include <QApplication>
#include <QTest>
#include <QThreadPool>

#include <fmt/format.h>
#include <fstream>
#include <functional>

namespace quelvarn::scenario {

// Who the user is, what the clock says and which printers there are is told by the scenario; drives and files are
// real ones in a folder of their own.
struct World::Parts
{
    TempFolder folder;
    FakeClock clock;
    FakeEnvironment environment;
    FakePrinters printers;
    FakePrograms programs;
    FakeClipboard clipboard;
    FakeDefaultApplication opener;
    QtProgress progress;
    std::unique_ptr<SystemPorts> system;
    std::unique_ptr<Ports> ports;
    std::unique_ptr<Appearance> appearance;
    // Gone when the program has ended.
    std::unique_ptr<SessionState> session;
    std::unique_ptr<Workplace> workplace;
    bool ended = false;
    std::unique_ptr<LockHolder> lock;
    std::unique_ptr<RealProgram> realProgram;

    std::filesystem::path drives() const { return folder.path() / "laufwerke"; }
};

World::World(std::string pictureFolder) : parts_(std::make_unique<Parts>()), pictureFolder_(std::move(pictureFolder))
{
    std::filesystem::create_directories(parts_->drives());
    parts_->environment.computer = "CAD-WS01";
    parts_->environment.user = "Meier";
    parts_->clock.time = DateTime::from({2026, 11, 22, 8, 0, 0});
    parts_->printers.defaultPrinter = DefaultPrinter{"Buero"};
    parts_->system = systemPorts(parts_->drives());
    parts_->ports = std::make_unique<Ports>(Ports{boxes, parts_->clock, parts_->environment, parts_->system->files(),
                                                  parts_->system->drives(), parts_->printers, parts_->programs,
                                                  parts_->clipboard, parts_->opener, parts_->progress});
    parts_->appearance = std::make_unique<Appearance>(qt((parts_->folder.path() / "darstellung.ini").string()));
    parts_->appearance->setMode(Mode::Light);
    addDrive("c");
    addDrive("w");
}

World::~World()
{
    fillDisk({});
    parts_->workplace.reset();
}

void World::setUser(const std::string& name)
{
    parts_->environment.user = name;
}

void World::setSystemUser()
{
    setUser(parts_->system->environment().userName());
}

void World::setComputer(const std::string& name)
{
    parts_->environment.computer = name;
}

void World::setClock(const std::string& iso)
{
    const auto time = parseIso(iso);
    if (!time)
        throw Difference(fmt::format("\"{}\" is no time (YYYY-MM-DD HH:MM:SS)", iso));
    parts_->clock.time = *time;
}

void World::advance(int seconds)
{
    parts_->clock.before(seconds);
}

void World::addDrive(const std::string& letter)
{
    std::filesystem::create_directories(parts_->drives() / letter);
}

void World::addShare(const std::string& letter, const std::string& share)
{
    std::ofstream(parts_->drives() / (letter + ".freigabe")) << share << "\n";
}

void World::setPrinter(const std::string& name, int paper, int copies, int orientation)
{
    parts_->printers.defaultPrinter = DefaultPrinter{name, paper, copies, orientation};
}

void World::removePrinters()
{
    parts_->printers.printers.clear();
    parts_->printers.defaultPrinter.reset();
}

void World::addForeignWindow(const std::string& caption)
{
    parts_->programs.other.push_back(caption);
}

void World::clearForeignWindows()
{
    parts_->programs.other.clear();
}

void World::setClipboard(const std::string& text)
{
    parts_->clipboard.content = text;
}

void World::look(bool dark)
{
    parts_->appearance->setMode(dark ? Mode::Dark : Mode::Light);
    parts_->appearance->apply(*qApp);
}

void World::start()
{
    parts_->ended = false;
    parts_->appearance->apply(*qApp);
    parts_->session = std::make_unique<SessionState>();
    parts_->session->database.connection.setPatience(&waits);
    {
        SlotGuard guard(boxes, [this] { parts_->ended = true; });
        guard.execute([this] { Main(*parts_->session, *parts_->ports); });
    }
    if (parts_->ended)
        return parts_->session.reset();
    parts_->workplace = std::make_unique<Workplace>(*parts_->session, *parts_->ports, *parts_->appearance,
                                                    [this] { parts_->ended = true; });
    if (!parts_->workplace->start())
        parts_->ended = true;
    settle();
}

void World::close()
{
    if (!running())
        throw Difference("the program does not run");
    mainWindow().close();
    settle();
}

bool World::running() const
{
    return parts_->workplace != nullptr && !parts_->ended;
}

QWidget& World::mainWindow() const
{
    if (parts_->workplace == nullptr)
        throw Difference("the program does not run");
    return parts_->workplace->window();
}

void World::settle() const
{
    QApplication::processEvents();
    QThreadPool::globalInstance()->waitForDone(); // Pictures are loaded beside the window.
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (parts_->ended && parts_->workplace != nullptr) {
        parts_->workplace.reset();
        parts_->session.reset();
    }
}

void World::lockRegister(const std::string& mode)
{
    parts_->lock.reset();
    parts_->lock = std::make_unique<LockHolder>(realPath(register_), mode);
}

void World::unlockRegister()
{
    if (parts_->lock == nullptr)
        throw Difference("the register is not locked");
    parts_->lock.reset();
}

std::filesystem::path World::awayPlace(const std::string& windowsPath) const
{
    const auto folder = parts_->folder.path() / "away";
    std::filesystem::create_directories(folder);
    return folder / std::to_string(std::hash<std::string>()(windowsPath));
}

void World::startRealProgram()
{
    parts_->realProgram.reset();
    parts_->realProgram = std::make_unique<RealProgram>(parts_->folder.path(), parts_->drives());
}

RealProgram& World::realProgram() const
{
    if (parts_->realProgram == nullptr)
        throw Difference("the program was not started as a process of its own");
    return *parts_->realProgram;
}

Files& World::files() const
{
    return parts_->system->files();
}

std::filesystem::path World::realPath(const std::string& windowsPath) const
{
    return files().systemPath(windowsPath);
}

std::string World::fileText(const std::string& windowsPath) const
{
    auto text = files().read(windowsPath);
    std::erase(text, '\r');
    if (text.ends_with('\n'))
        text.pop_back();
    return text;
}

std::string World::clipboardText() const
{
    return parts_->clipboard.content;
}

std::string World::lastOpened() const
{
    return parts_->opener.opened.empty() ? "" : parts_->opener.opened.back();
}

Connection World::connect() const
{
    if (register_.empty())
        throw Difference("no register was named yet");
    Connection connection;
    connection.Open(realPath(register_));
    return connection;
}

} // namespace quelvarn::scenario
