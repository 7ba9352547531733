#include "tools/console.h"

#include "base/number_format.h"

#include <csignal>
#include <fmt/format.h>
#include <utility>

namespace quelvarn::tools {

namespace {

volatile std::sig_atomic_t cancelWanted = 0;

void rememberCancel(int)
{
    cancelWanted = 1;
}

constexpr auto INTERVAL = std::chrono::milliseconds(150);
constexpr std::uint64_t CALLS_PER_LOOK_AT_THE_CLOCK = 256;

} // namespace

RuntimeError toolFault(const std::string& description)
{
    return RuntimeError(0, "qvadmin", description);
}

void catchCancel()
{
    std::signal(SIGINT, rememberCancel);
    std::signal(SIGTERM, rememberCancel);
#ifdef SIGBREAK // The window of the console is closed.
    std::signal(SIGBREAK, rememberCancel);
#endif
}

void checkCancel()
{
    if (cancelWanted != 0)
        throw toolFault("Abgebrochen. Es wurde nichts verändert.");
}

void ProgressLine::notify(std::string_view what, std::uint64_t done, std::uint64_t total)
{
    if (calls_++ % CALLS_PER_LOOK_AT_THE_CLOCK != 0)
        return;
    checkCancel();
    if (!console_.terminal)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (now < next_)
        return;
    next_ = now + INTERVAL;
    show(what, done, total);
}

void ProgressLine::step(std::string_view what, std::uint64_t done, std::uint64_t total)
{
    checkCancel();
    if (console_.terminal)
        show(what, done, total);
}

void ProgressLine::show(std::string_view what, std::uint64_t done, std::uint64_t total)
{
    if (!painter_)
        painter_.emplace(console_.log);
    std::string row = fmt::format("{}: {}", what, formatInteger(static_cast<std::int64_t>(done)));
    if (total != 0)
        row += fmt::format(" von {}", formatInteger(static_cast<std::int64_t>(total)));
    painter_->show(std::move(row));
}

} // namespace quelvarn::tools
