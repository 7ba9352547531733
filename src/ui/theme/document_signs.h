#pragma once

#include <string_view>

namespace quelvarn {

// The picture of a document's type, by the ending of its file.
std::string_view dokumentzeichen(std::string_view filename);
inline constexpr std::string_view ZEICHEN_SONDERTABELLE = "special-part";

} // namespace quelvarn
