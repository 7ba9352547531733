#pragma once

#include "register/property_tree.h"

namespace quelvarn {

struct TreeSwitches;
struct DocumentFacts;
struct DokuRecord;
struct DocumentType;

// The property tree of a document. The children of its first node are complete once the facts tell of properties.
PropertyTree treeOf(const DokuRecord& record, const DocumentFacts& facts, const DocumentType& type,
                    const TreeSwitches& switches);

} // namespace quelvarn
