#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/drives.h"
#include "platform/environment.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class Files;

class WindowsClock : public Clock
{
public:
    DateTime now() const override;
};

// Names are cut at 25 characters, as they stand in the tables.
class WindowsEnvironment : public Environment
{
public:
    std::string computerName() const override;
    std::string userName() const override;
    SystemVersion systemVersion() const override;
    std::string systemDrive() const override;
};

// The drives that there are, and those remembered ones whose share is out of reach at the moment. No drive is
// asked itself, so a dead one delays nothing.
class WindowsDrives : public Drives
{
public:
    std::vector<Drive> list() const override;
};

// Hands a file or folder to the shell, which says nothing when it cannot do it.
class WindowsDefaultApplication : public DefaultApplication
{
public:
    explicit WindowsDefaultApplication(const Files& files) : files_(files) {}
    bool open(std::string_view documentPath) override;

private:
    const Files& files_;
};

// The name as it stands in the tables.
std::string shortenedName(std::wstring_view name);

} // namespace quelvarn
