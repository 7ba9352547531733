#pragma once

#include <string>

namespace quelvarn {

inline constexpr int VERSION_MAJOR = 2; // Must stay 2: sibling programs find this one by its caption.
inline constexpr int VERSION_MINOR = 0;
inline constexpr int VERSION_REVISION = 0;

// "    Quelvarn Version 2.0.0": the tail of the main window's caption.
std::string versionText();

} // namespace quelvarn
