#pragma once

#include <cstddef>
#include <filesystem>

namespace quelvarn::bench {

// A register with so many documents in PartTabelle, every column filled as an office would. A file that is there
// already with the right number of documents is taken as it is.
void legeRegisterBereit(const std::filesystem::path& datei, std::size_t dokumente);

} // namespace quelvarn::bench
