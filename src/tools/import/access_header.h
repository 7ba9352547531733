#pragma once

#include <filesystem>

namespace quelvarn::tools {

// Throws Laufzeitfehler unless the file begins as an Access file does and ends with a whole page.
void pruefeAccessKopf(const std::filesystem::path& datei);

} // namespace quelvarn::tools
