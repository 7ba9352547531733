#pragma once

#include <optional>
#include <string>

namespace quelvarn {

// What a call is answered with instead of a window.
struct Reply
{
    std::string text;
    int exitCode = 0;
};

// Reads the call before there is a screen. Empty when the program is to start; options of Qt are left to Qt.
std::optional<Reply> answerTo(int argc, char** argv);

} // namespace quelvarn
