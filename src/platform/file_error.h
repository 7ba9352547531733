#pragma once

#include "base/runtime_error.h"

#include <string_view>
#include <system_error>

namespace quelvarn {

// The fault of a file operation: a number and a German reason, with the path behind it.
Laufzeitfehler dateifehler(const std::error_code& grund, std::string_view pfad);
Laufzeitfehler dateifehler(std::errc grund, std::string_view pfad);

} // namespace quelvarn
