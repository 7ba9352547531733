#pragma once

#include <string_view>

namespace quelvarn {

class Boxes;

inline constexpr std::string_view NOT_IN_DIRECTORY = "Im Verzeichnis nicht vorhanden";

// With a last line of advice, if any.
void tellFileMissing(Boxes& boxes, std::string_view documentPath, std::string_view rat = {});

} // namespace quelvarn
