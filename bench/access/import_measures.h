#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// The import of an Access file beside what it cannot do without: reading the cells, and writing the rows.
void measureImport(Measurements& series, const std::filesystem::path& accessFile);

} // namespace quelvarn::bench
