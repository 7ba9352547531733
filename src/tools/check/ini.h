#pragma once

#include "tools/check/findings.h"

namespace quelvarn::tools {

// Rows of the table Ini that a start complains of or mends.
void checkIni(Engine& engine, Findings& findings);

} // namespace quelvarn::tools
