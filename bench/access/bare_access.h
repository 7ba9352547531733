#pragma once

#include <cstddef>
#include <filesystem>

namespace quelvarn::bench {

// Reads every cell of every user's table of an Access file with libmdb and nothing else: the peer. Bytes of the cells.
std::size_t readAllCells(const std::filesystem::path& file);

} // namespace quelvarn::bench
