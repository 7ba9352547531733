#include "scenario_runner/real_program.h"

#include "scenario_runner/script.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <array>
#include <csignal>
#include <fmt/format.h>
#include <utility>

namespace quelvarn::scenario {

namespace fs = std::filesystem;

namespace {

constexpr int LONGEST_WAIT = 30'000; // milliseconds
constexpr std::array<std::pair<std::string_view, int>, 4> SIGNALS{
    {{"TERM", SIGTERM}, {"INT", SIGINT}, {"HUP", SIGHUP}, {"KILL", SIGKILL}}};

QProcessEnvironment environmentIn(const fs::path& folder)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    const auto set = [&](const char* name, const fs::path& path) {
        fs::create_directories(path);
        environment.insert(QLatin1String(name), QString::fromStdString(path.string()));
    };
    set("HOME", folder / "home");
    set("XDG_DATA_HOME", folder / "data");
    set("XDG_CONFIG_HOME", folder / "config");
    set("XDG_RUNTIME_DIR", folder / "run");
    fs::permissions(folder / "run", fs::perms::owner_all);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    return environment;
}

} // namespace

RealProgram::RealProgram(const fs::path& folder, const fs::path& drives)
{
    process_.setProcessEnvironment(environmentIn(folder));
    process_.setProcessChannelMode(QProcess::MergedChannels);
    fs::create_directories(folder / "data/quelvarn");
    if (!fs::exists(folder / "data/quelvarn/laufwerke"))
        fs::create_directory_symlink(drives, folder / "data/quelvarn/laufwerke");
    process_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/quelvarn"), QStringList());
    if (!process_.waitForStarted())
        throw Difference("the program cannot be started: " + process_.errorString().toStdString());
    waitForWindow(folder / "run/quelvarn");
}

RealProgram::~RealProgram()
{
    process_.kill();
    process_.waitForFinished();
}

// It tells its caption to others when its window is up.
void RealProgram::waitForWindow(const fs::path& captions)
{
    const auto caption = captions / std::to_string(process_.processId());
    QElapsedTimer waited;
    waited.start();
    while (!fs::exists(caption)) {
        process_.waitForReadyRead(20);
        if (!running() || waited.elapsed() > LONGEST_WAIT)
            throw Difference("the program did not come up\n  " + process_.readAll().toStdString());
    }
}

void RealProgram::end(const std::string& signal)
{
    for (const auto& [name, number] : SIGNALS) {
        if (name != signal)
            continue;
        kill(static_cast<pid_t>(process_.processId()), number);
        if (!process_.waitForFinished(LONGEST_WAIT))
            throw Difference(fmt::format("the program goes on after {}", signal));
        return;
    }
    throw Difference(fmt::format("a program is ended by TERM, INT, HUP or KILL, not by \"{}\"", signal));
}

std::optional<int> RealProgram::exitCode() const
{
    if (running() || process_.exitStatus() != QProcess::NormalExit)
        return std::nullopt;
    return process_.exitCode();
}

} // namespace quelvarn::scenario
