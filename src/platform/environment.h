#pragma once

#include <string>

namespace quelvarn {

struct Systemversion
{
    std::string major;
    std::string minor;
    int plattform = 0;
};

// Who works on which computer.
class Umgebung
{
public:
    virtual ~Umgebung() = default;
    virtual std::string rechnername() const = 0;
    virtual std::string anwendername() const = 0;
    virtual Systemversion systemversion() const = 0;
    // The drive of the system folder with its colon, such as "C:".
    virtual std::string systemlaufwerk() const = 0;
};

} // namespace quelvarn
