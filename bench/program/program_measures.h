#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// Opening, tabs and rows of the program itself, from the gesture to the painted window. Needs a QApplication.
void measureProgram(Measurements& series, const std::filesystem::path& file);

} // namespace quelvarn::bench
