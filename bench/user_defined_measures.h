#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// The filter for user-defined properties and its lists, over five properties of each part.
void messeBenutzDef(Messreihe& reihe, const std::filesystem::path& datei);

} // namespace quelvarn::bench
