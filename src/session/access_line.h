#pragma once

#include <string>

namespace quelvarn {

struct Rights;

// The text of LblZugriffSEDoku for these rights.
std::string accessLine(const Rights& rights);

} // namespace quelvarn
