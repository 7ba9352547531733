#pragma once

namespace quelvarn {

struct StartRun;

// Each reads its rows into the session and adds or mends what is missing or wrong (see StartRun).
void readOfflineData(StartRun& run);
void readZipData(StartRun& run);

} // namespace quelvarn
