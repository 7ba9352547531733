#pragma once

#include "base/runtime_error.h"

#include <string_view>
#include <system_error>

namespace quelvarn {

// The fault of a file operation: a number and a German reason, with the path behind it.
RuntimeError fileFault(const std::error_code& reason, std::string_view documentPath);
RuntimeError fileFault(std::errc reason, std::string_view documentPath);

} // namespace quelvarn
