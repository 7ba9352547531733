#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// The measures of the windows, drawn without a screen, with so many runs of the ready-made Qt table (0: none).
void measureWindow(Measurements& series, const std::filesystem::path& file, int qtRuns);

} // namespace quelvarn::bench
