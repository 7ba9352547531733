#pragma once

namespace quelvarn {

struct StartRun;

// Each reads its rows into the session and adds or mends what is missing or wrong (see StartRun).
void readPlotPfad(StartRun& run);
void readOfflineTool(StartRun& run);
void readPlotDrucker(StartRun& run);
void readPdfDrucker(StartRun& run);

} // namespace quelvarn
