#pragma once

#include "base/runtime_error.h"
#include "tools/progress_painter.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace quelvarn::tools {

// Where a command writes: results to `aus`, messages to `boxes`.
struct Console
{
    std::ostream& out;
    std::ostream& log;
    bool terminal = false; // `boxes` is watched by a person: progress may be shown.
};

RuntimeError toolFault(const std::string& description);

// From here on Ctrl+C and a request to end do not stop the process at once: the next checkCancel throws, so
// that what was begun is taken back.
void catchCancel();
void checkCancel();

// One line that rewrites itself while long work runs; shows nothing where no terminal is.
class ProgressLine
{
public:
    explicit ProgressLine(Console& console) : console_(console) {}

    // Cheap enough to be called for each row. Throws when the work is to be given up.
    void notify(std::string_view what, std::uint64_t done, std::uint64_t total = 0);
    // For a step that takes long by itself: shown at once.
    void step(std::string_view what, std::uint64_t done, std::uint64_t total);

private:
    void show(std::string_view what, std::uint64_t done, std::uint64_t total);

    Console& console_;
    std::uint64_t calls_ = 0;
    std::chrono::steady_clock::time_point next_;
    std::optional<ProgressPainter> painter_;
};

} // namespace quelvarn::tools
