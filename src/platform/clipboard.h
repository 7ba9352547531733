#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

class Zwischenablage
{
public:
    virtual ~Zwischenablage() = default;
    virtual std::string text() const = 0;
    virtual void setzeText(std::string_view text) = 0;
};

// Opens a file with the program that the system has for it.
class Standardanwendung
{
public:
    virtual ~Standardanwendung() = default;
    // False when nothing could be started.
    virtual bool oeffne(std::string_view pfad) = 0;
};

} // namespace quelvarn
