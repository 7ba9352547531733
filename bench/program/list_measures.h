#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// The program's grid beside the ready-made parts of Qt, each in a window of its own. To compare: no bounds.
// So many runs of the slow peer.
void measureLists(Measurements& series, const std::filesystem::path& file, int qtRuns);

} // namespace quelvarn::bench
