#pragma once

#include "fakes/fake_boxes.h"
#include "fakes/fake_files.h"
#include "fakes/fake_world.h"
#include "platform/ports.h"

namespace quelvarn {

// The whole outside world of a test.
struct FakePorts
{
    FakePorts() = default;
    FakePorts(const FakePorts&) = delete;
    FakePorts& operator=(const FakePorts&) = delete;

    FakeBoxes boxes;
    FakeClock clock;
    FakeEnvironment environment;
    FakeFiles files{clock};
    FakeDrives drives;
    FakePrinters printers;
    FakePrograms programs;
    FakeClipboard clipboard;
    FakeDefaultApplication defaultApplication;
    FakeProgress progress;

    Ports ports() { return portsWith(files); }
    // With files of another kind, such as real ones.
    Ports portsWith(Files& other)
    {
        return {boxes, clock, environment, other, drives, printers, programs, clipboard, defaultApplication, progress};
    }
};

} // namespace quelvarn
