#pragma once

#include <string>
#include <string_view>

namespace quelvarn::sample {

// One page with a title, as a whole PDF file.
std::string pdfSheet(std::string_view title);
// A sheet with a frame, as a whole TIFF file (black and white, not compressed).
std::string tiffSheet();

} // namespace quelvarn::sample
