#pragma once

#include "base/runtime_error.h"

#include <string>
#include <string_view>

namespace quelvarn {

// The system's own text for one of its error numbers (GetLastError), in the user's language, without a line end.
std::string windowsMeldung(unsigned long fehler);

// The fault of a file operation, with the numbers and reasons that it has on every system.
Laufzeitfehler windowsDateifehler(unsigned long fehler, std::string_view pfad);

} // namespace quelvarn
