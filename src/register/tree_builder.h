#pragma once

#include "register/property_tree.h"

namespace quelvarn {

struct Baumschalter;
struct DocumentFacts;
struct DokuRecord;
struct DokuTyp;

// The property tree of a document. The children of its first node are complete once the facts tell of properties.
Eigenschaftsbaum treeOf(const DokuRecord& record, const DocumentFacts& facts, const DokuTyp& type,
                        const Baumschalter& switches);

} // namespace quelvarn
