#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>

namespace quelvarn::bench {

// Sees every document; known in the register that prepareRegister makes.
inline constexpr std::string_view USER = "Messung";

// A register with so many documents in PartTabelle, every column filled as an office would, small other tables, and
// what relates documents to one another. A file that is there already with the right number of documents is taken as
// it is.
void prepareRegister(const std::filesystem::path& file, std::size_t documents);

} // namespace quelvarn::bench
