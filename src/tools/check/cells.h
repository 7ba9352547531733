#pragma once

#include "tools/check/findings.h"
#include "tools/console.h"

namespace quelvarn::tools {

// Every cell of the register's tables can be read and is what its column says.
void checkCells(Engine& engine, Findings& findings, ProgressLine& display);

} // namespace quelvarn::tools
