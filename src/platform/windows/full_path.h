#pragma once

#include <string>
#include <string_view>

namespace quelvarn {

// A Windows path as the system takes it: drive or share first, backslashes, no "." and no ".." (which never lead
// above drive or share), no parts that end with a blank or a point. Empty when it names neither drive nor share.
std::wstring fullPath(std::string_view documentPath);

// The same path in the form that may have any length and in which no name stands for a device.
std::wstring longPath(const std::wstring& fullPath);

} // namespace quelvarn
