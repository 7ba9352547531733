#include "app/end_request.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace quelvarn {
namespace {

constexpr std::array<int, 3> SIGNALS{SIGTERM, SIGINT, SIGHUP};

// A signal handler may do next to nothing: it writes into a pipe that the event loop reads.
std::array<int, 2> signalPipe{-1, -1};

void tellPipe(int)
{
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
    errno = before;
}

void handleSignals(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : SIGNALS)
        sigaction(signal, &action, nullptr);
}

class SignalWatch final : public QObject
{
public:
    explicit SignalWatch(std::function<void()> wanted)
    {
        if (pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            throw std::system_error(errno, std::generic_category());
        auto* notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, [wanted = std::move(wanted)] {
            char bytes[16];
            while (read(signalPipe[0], bytes, sizeof bytes) > 0) {
            }
            wanted();
        });
        handleSignals(tellPipe);
    }
    ~SignalWatch() override
    {
        handleSignals(SIG_DFL);
        for (const int end : signalPipe)
            close(end);
    }
};

} // namespace

std::unique_ptr<QObject> watchEndSignals(std::function<void()> wanted)
{
    return std::make_unique<SignalWatch>(std::move(wanted));
}

} // namespace quelvarn
