#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

// A Windows path as the system takes it: drive or share first, backslashes, no "." and no ".." (which never lead
// above drive or share), no parts that end with a blank or a point. Empty when it names neither drive nor share.
std::wstring vollerPfad(std::string_view pfad);

// The same path in the form that may have any length and in which no name stands for a device.
std::wstring langerPfad(const std::wstring& vollerPfad);

} // namespace quelvarn
