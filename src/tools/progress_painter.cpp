#include "tools/progress_painter.h"

#include <utility>

namespace quelvarn::tools {

namespace {

constexpr std::string_view ERASED = "\r\x1b[K";

} // namespace

ProgressPainter::ProgressPainter(std::ostream& console) : console_(console), thread_([this] { paint(); }) {}

ProgressPainter::~ProgressPainter()
{
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
    }
    changed_.notify_one();
    thread_.join();
    console_ << ERASED << std::flush;
}

void ProgressPainter::show(std::string line)
{
    {
        const std::lock_guard lock(mutex_);
        waiting_ = std::move(line);
    }
    changed_.notify_one();
}

void ProgressPainter::paint()
{
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ended_ || !waiting_.empty(); });
        if (waiting_.empty())
            return;
        const std::string line = std::exchange(waiting_, {});
        lock.unlock();
        console_ << ERASED << line << std::flush;
        lock.lock();
    }
}

} // namespace quelvarn::tools
