#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// The import of an Access file beside what it cannot do without: reading the cells, and writing the rows.
void messeImport(Messreihe& reihe, const std::filesystem::path& accessDatei);

} // namespace quelvarn::bench
