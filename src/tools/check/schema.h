#pragma once

#include "tools/check/findings.h"

namespace quelvarn::tools {

enum class Indexes { Check, Build };

// Tables, columns, their types, and indexes. Missing indexes are built when wanted.
void checkSchema(Engine& engine, Indexes indexes, Findings& findings);

} // namespace quelvarn::tools
