#pragma once

#include "tools/check/documents.h"

namespace quelvarn::tools {

// Rows that belong to a document which is in no table.
void checkLinks(Engine& engine, Findings& findings, ProgressLine& display, const DocumentKey& key);

} // namespace quelvarn::tools
