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

    FakeMeldungen meldungen;
    FakeUhr uhr;
    FakeUmgebung umgebung;
    FakeDateien dateien{uhr};
    FakeLaufwerke laufwerke;
    FakeDrucker drucker;
    FakeProgramme programme;
    FakeZwischenablage zwischenablage;
    FakeStandardanwendung standardanwendung;
    FakeFortschritt fortschritt;

    Ports ports() { return portsMit(dateien); }
    // With files of another kind, such as real ones.
    Ports portsMit(Dateien& andere)
    {
        return {meldungen,         uhr,        umgebung, andere, laufwerke, drucker, programme, zwischenablage,
                standardanwendung, fortschritt};
    }
};

} // namespace quelvarn
