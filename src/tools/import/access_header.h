#pragma once

#include <filesystem>

namespace quelvarn::tools {

// Throws RuntimeError unless the file begins as an Access file does and ends with a whole page.
void checkAccessHeader(const std::filesystem::path& file);

} // namespace quelvarn::tools
