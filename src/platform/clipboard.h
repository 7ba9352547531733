#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

class Clipboard
{
public:
    virtual ~Clipboard() = default;
    virtual std::string text() const = 0;
    virtual void setText(std::string_view text) = 0;
};

// Opens a file with the program that the system has for it.
class DefaultApplication
{
public:
    virtual ~DefaultApplication() = default;
    // False when nothing could be started.
    virtual bool open(std::string_view documentPath) = 0;
};

} // namespace quelvarn
