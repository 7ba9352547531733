#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

void showTable(const std::vector<Measurement>& measurements);
void writeJson(const std::filesystem::path& file, const std::vector<Measurement>& measurements);

} // namespace quelvarn::bench
