#pragma once

#include "base/runtime_error.h"

#include <string>
#include <string_view>

namespace quelvarn {

// The system's own text for one of its error numbers (GetLastError), in the user's language, without a line end.
std::string windowsMessage(unsigned long fault);

// The fault of a file operation, with the numbers and reasons that it has on every system.
RuntimeError windowsFileFault(unsigned long fault, std::string_view documentPath);

} // namespace quelvarn
