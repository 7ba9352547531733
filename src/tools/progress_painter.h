#pragma once

#include <condition_variable>
#include <mutex>
#include <ostream>
#include <string>
#include <thread>

namespace quelvarn::tools {

// One line that rewrites itself, painted by a thread of its own: a console that stands still (Ctrl+S, a marked text)
// holds back the line, but not the work, which may have others wait for it.
class ProgressPainter
{
public:
    explicit ProgressPainter(std::ostream& console);
    ~ProgressPainter(); // Paints what is still waiting, and erases the line.
    ProgressPainter(const ProgressPainter&) = delete;
    ProgressPainter& operator=(const ProgressPainter&) = delete;

    // Never waits for the console. A line that was not painted yet is forgotten.
    void show(std::string line);

private:
    void paint();

    std::ostream& console_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::string waiting_;
    bool ended_ = false;
    std::thread thread_; // Last: it uses the others.
};

} // namespace quelvarn::tools
