#pragma once

#include "tools/import/linux/reader_process.h"

#include <filesystem>
#include <span>
#include <string>

namespace quelvarn::tools {

// Reads the wanted tables of an Access file with libmdb and sends its catalog and then every row. Runs in the
// reading process: the library trusts its input. Throws RuntimeError where the file is damaged.
void readAccessFile(const std::filesystem::path& file, std::span<const std::string> wanted, Sender& sender);

} // namespace quelvarn::tools
