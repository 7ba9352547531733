#pragma once

#include "tools/check/findings.h"

namespace quelvarn::tools {

// Pages and indexes, as far as the engine checks them itself.
void checkPages(Engine& engine, Findings& findings);

} // namespace quelvarn::tools
