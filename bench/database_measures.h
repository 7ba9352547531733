#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// Opening, filtering, searching and moving in a recordset over the PartTabelle of this register.
void measureDatabase(Measurements& series, const std::filesystem::path& file);

} // namespace quelvarn::bench
