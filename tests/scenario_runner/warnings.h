#pragma once

#include <string>

namespace quelvarn::scenario {

// From now on a warning of the toolkit is kept: it is a fault of the step that it came in.
void keepWarnings();
// The warnings since the last call, a line each; "" for none.
std::string takeWarnings();

} // namespace quelvarn::scenario
