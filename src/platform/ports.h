#pragma once

namespace quelvarn {

class Boxes;
class Clock;
class Environment;
class Files;
class Drives;
class Printers;
class RunningPrograms;
class Clipboard;
class DefaultApplication;
class ProgressDisplay;

// The doors to the outside world, handed in by the program's entry. All live longer than their users.
struct Ports
{
    Boxes& boxes;
    Clock& clock;
    Environment& environment;
    Files& files;
    Drives& drives;
    Printers& printers;
    RunningPrograms& programs;
    Clipboard& clipboard;
    DefaultApplication& defaultApplication;
    ProgressDisplay& progress;
};

} // namespace quelvarn
