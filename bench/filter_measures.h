#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// What "Filtern" of the filter page costs over the PartTabelle of this register, five steps and a status condition.
void measureFilterPage(Measurements& series, const std::filesystem::path& file);

} // namespace quelvarn::bench
