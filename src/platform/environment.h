#pragma once

#include <string>

namespace quelvarn {

struct SystemVersion
{
    std::string major;
    std::string minor;
    int platform = 0;
};

// Who works on which computer.
class Environment
{
public:
    virtual ~Environment() = default;
    virtual std::string computerName() const = 0;
    virtual std::string userName() const = 0;
    virtual SystemVersion systemVersion() const = 0;
    // The drive of the system folder with its colon, such as "C:".
    virtual std::string systemDrive() const = 0;
};

} // namespace quelvarn
