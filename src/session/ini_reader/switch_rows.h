#pragma once

namespace quelvarn {

struct StartRun;
struct UseSettings;

// Each reads its rows into the session and adds or mends what is missing or wrong (see StartRun).
void readCheckInOut(StartRun& run);
void readForward(StartRun& run);
void readMessageSwitches(StartRun& run);
void readActiveQuelvarn(StartRun& run);
void readZeitintervall(StartRun& run);
void readStarttabelle(StartRun& run);
void readTreeview(StartRun& run);

void setZeitintervall(UseSettings& use, int milliseconds);

} // namespace quelvarn
