#pragma once

#include <filesystem>

namespace quelvarn::scenario {

// From now on the disk that this folder lies on is full for the program: no file below it grows any more, and whoever
// tries gets the system's own error. An empty path makes room again. Throws Skipped where this cannot be had.
void fillDisk(const std::filesystem::path& folder);

} // namespace quelvarn::scenario
