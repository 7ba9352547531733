#pragma once

#include "tools/import/linux/reader_process.h"

#include <filesystem>
#include <span>
#include <string>

namespace quelvarn::tools {

// Reads the wanted tables of an Access file with libmdb and sends its catalog and then every row. Runs in the
// reading process: the library trusts its input. Throws Laufzeitfehler where the file is damaged.
void liesAccessDatei(const std::filesystem::path& datei, std::span<const std::string> gewuenscht, Sender& sender);

} // namespace quelvarn::tools
