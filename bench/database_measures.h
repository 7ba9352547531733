#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// Opening, filtering, searching and moving in a recordset over the PartTabelle of this register.
void messeDatenbank(Messreihe& reihe, const std::filesystem::path& datei);

} // namespace quelvarn::bench
