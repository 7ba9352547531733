#include "app/end_signals.h"

#include "ui/guard.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace quelvarn {

namespace {

constexpr std::array SIGNALS{SIGTERM, SIGINT, SIGHUP};
std::array<int, 2> ends{-1, -1}; // A signal is written into the first and read from the second.

// Nothing but a write is allowed in here.
void tell(int)
{
    const char one = 1;
    [[maybe_unused]] const ssize_t written = write(ends[0], &one, sizeof one);
}

void handle(int signal)
{
    struct sigaction before = {};
    sigaction(signal, nullptr, &before);
    if (before.sa_handler == SIG_IGN) // Whoever started the program wants it so (nohup).
        return;
    struct sigaction action = {};
    action.sa_handler = tell;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    sigaction(signal, &action, nullptr);
}

} // namespace

EndSignals::EndSignals(std::function<void()> asked) : asked_(std::move(asked))
{
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return; // The signals then end the process as they always do.
    auto* notifier = new QSocketNotifier(ends[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, guardedSlot([this, notifier] {
                notifier->setEnabled(false);
                asked_();
            }));
    for (const int signal : SIGNALS)
        handle(signal);
}

EndSignals::~EndSignals()
{
    for (const int signal : SIGNALS)
        std::signal(signal, SIG_DFL);
    close(ends[0]);
    close(ends[1]);
}

} // namespace quelvarn
