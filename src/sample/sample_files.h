#pragma once

#include "sample/document_row.h"

#include <cstdint>
#include <filesystem>
#include <functional>

namespace quelvarn::sample {

constexpr std::uint64_t DOCUMENTS_WITH_FILE = 5000;

// Writes files for the first documents of the register; the folder stands for drive W:. Models are a few words
// of text, drawings come with a PDF and some with a TIFF, as do some additional documents. The number of files.
// `progress` is told how many documents are done; what it throws ends the work. A file that cannot be written throws.
std::uint64_t writeFiles(const Documents& documents, const std::filesystem::path& folder,
                         const std::function<void(std::uint64_t)>& progress);

} // namespace quelvarn::sample
