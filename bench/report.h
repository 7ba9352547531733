#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

void zeigeTabelle(const std::vector<Messung>& messungen);
void schreibeJson(const std::filesystem::path& datei, const std::vector<Messung>& messungen);

} // namespace quelvarn::bench
