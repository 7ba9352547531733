#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// The lists of the filter page, a level of its tree, and a key press of the quick search where every text differs.
void measureLists(Measurements& series, const std::filesystem::path& file);

} // namespace quelvarn::bench
