#pragma once

namespace quelvarn {

struct StartRun;

// Each reads its rows into the session and adds or mends what is missing or wrong (see StartRun).
void readLabels(StartRun& run);
void readSearchTexts(StartRun& run);
void readSpecialTables(StartRun& run);

} // namespace quelvarn
