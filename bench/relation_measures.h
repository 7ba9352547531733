#pragma once

#include "bench/measure.h"

#include <filesystem>

namespace quelvarn::bench {

// What the tree asks of the link tables for each row, the components of a large assembly, the jump to a document.
void measureRelation(Measurements& series, const std::filesystem::path& file);

} // namespace quelvarn::bench
