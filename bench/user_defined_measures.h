#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// The filter for user-defined properties and its lists, over five properties of each part.
void measureUserDef(Measurements& series, const std::filesystem::path& file);

} // namespace quelvarn::bench
