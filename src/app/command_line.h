#pragma once

#include <optional>

namespace quelvarn {

// What can be answered without a window, and without a display: --help and --version. The exit code then.
std::optional<int> answerWithoutWindow(int argc, char** argv);

// As long as it lives, no window system to be found ends the program with exit code 1 and a German sentence instead of
// a crash.
class DisplayCheck
{
public:
    DisplayCheck();
    ~DisplayCheck();
    DisplayCheck(const DisplayCheck&) = delete;
    DisplayCheck& operator=(const DisplayCheck&) = delete;
};

// What the window system has taken none of is told; the exit code then.
std::optional<int> refuseUnknownArguments();

} // namespace quelvarn
