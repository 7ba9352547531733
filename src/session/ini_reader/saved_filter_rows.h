#pragma once

namespace quelvarn {

struct StartRun;

// Reads the saved filters of all types into the session (see StartRun).
void readSavedFilters(StartRun& run);

} // namespace quelvarn
