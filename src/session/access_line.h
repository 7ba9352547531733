#pragma once

#include <string>

namespace quelvarn {

struct SessionState;

// The text of LblZugriffSEDoku for these rights.
std::string accessLine(const SessionState& session);

} // namespace quelvarn
