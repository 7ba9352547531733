#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/drives.h"
#include "platform/environment.h"
#include "platform/linux/drive_folder.h"

#include <string>
#include <utility>

namespace quelvarn {

class Files;

class LinuxClock : public Clock
{
public:
    DateTime now() const override;
};

// Names are cut at 25 characters, as they stand in the tables.
class LinuxEnvironment : public Environment
{
public:
    std::string computerName() const override;
    std::string userName() const override;
    SystemVersion systemVersion() const override;
    std::string systemDrive() const override { return "C:"; }
};

class LinuxDrives : public Drives
{
public:
    explicit LinuxDrives(const DriveFolder& drives) : drives_(drives) {}
    std::vector<Drive> list() const override { return drives_.drives(); }

private:
    const DriveFolder& drives_;
};

// Hands a file to the desktop's opener, which is left to itself.
class LinuxDefaultApplication : public DefaultApplication
{
public:
    explicit LinuxDefaultApplication(const Files& files, std::string program = "xdg-open")
        : files_(files), program_(std::move(program))
    {}
    bool open(std::string_view documentPath) override;

private:
    const Files& files_;
    std::string program_;
};

} // namespace quelvarn
