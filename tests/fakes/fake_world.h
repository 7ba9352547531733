#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/drives.h"
#include "platform/environment.h"
#include "platform/printers.h"
#include "platform/progress.h"
#include "platform/running_programs.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quelvarn {

// A clock that stands until the test moves it.
class FakeClock : public Clock
{
public:
    DateTime now() const override { return time; }
    void before(std::int64_t seconds) { time = time.plusSeconds(seconds); }

    DateTime time = DateTime::from({2004, 3, 1, 8, 30, 0});
};

class FakeEnvironment : public Environment
{
public:
    std::string computerName() const override { return computer; }
    std::string userName() const override { return user; }
    SystemVersion systemVersion() const override { return version; }
    std::string systemDrive() const override { return drive; }

    std::string computer = "CAD-PC-7";
    std::string user = "mueller";
    SystemVersion version = {"6", "2", 2};
    std::string drive = "C:";
};

class FakeDrives : public Drives
{
public:
    std::vector<Drive> list() const override { return drives; }

    std::vector<Drive> drives = {{"C:", ""}, {"W:", "\\\\server\\konstruktion"}};
};

class FakePrinters : public Printers
{
public:
    std::vector<std::string> names() const override { return printers; }
    std::optional<DefaultPrinter> standard() const override { return defaultPrinter; }

    std::vector<std::string> printers = {"Plotter A0", "Buero"};
    std::optional<DefaultPrinter> defaultPrinter = DefaultPrinter{"Buero"};
};

class FakePrograms : public RunningPrograms
{
public:
    std::vector<std::string> windowTitles() const override
    {
        std::vector<std::string> all = other;
        if (!own.empty())
            all.push_back(own);
        return all;
    }
    void ownTitle(std::string_view title) override { own = title; }

    std::vector<std::string> other;
    std::string own;
};

class FakeClipboard : public Clipboard
{
public:
    std::string text() const override { return content; }
    void setText(std::string_view text) override { content = text; }

    std::string content;
};

// Notes what would have been opened.
class FakeDefaultApplication : public DefaultApplication
{
public:
    bool open(std::string_view documentPath) override
    {
        opened.emplace_back(documentPath);
        return startsSomething;
    }

    std::vector<std::string> opened;
    bool startsSomething = true;
};

// Gives work up at its next step once it has lost patience.
class FakeProgress final : public ProgressDisplay
{
public:
    void begin(std::string_view) override { ++begun; }
    bool step(std::size_t, std::size_t) override { return patience; }
    void end() override { ++ended; }

    bool patience = true;
    int begun = 0;
    int ended = 0;
};

} // namespace quelvarn
