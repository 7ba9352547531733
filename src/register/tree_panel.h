#pragma once

#include "database/document_types.h"
#include "register/document_facts.h"
#include "register/property_tree.h"
#include "session/operations.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace quelvarn {

class DocumentTables;
class Connection;
struct TreeSwitches;

// The property trees of the eight tables. Each is that of the current row of its table.
class TreePanel
{
public:
    TreePanel(Connection& connection, const TreeSwitches& switches, Operations& operations, DocumentTables& tables)
        : connection_(connection), switches_(switches), operations_(operations), tables_(tables)
    {}

    // --- operations on the tree in front ---
    void unfold(); // The node "Eigenschaften".
    void fold();

    // --- mechanisms ---
    // For the record of this table. A fault is reported; the tree then shows what was found.
    void BaumAufbauen(int tab);
    void select(std::string_view node);
    void clear(int tab);
    void clearAll() { trees_ = {}; }

    // --- state ---
    const PropertyTree& tree(int tab) const { return trees_[static_cast<std::size_t>(tab)]; }
    const PropertyTree& tree() const;
    // Of the document whose tree was built last.
    const DocumentFacts& facts() const { return facts_; }

private:
    PropertyTree& inFront();
    void KinderAufbauen();

    Connection& connection_;
    const TreeSwitches& switches_;
    Operations& operations_;
    DocumentTables& tables_;
    std::array<PropertyTree, DOCUMENT_TYPE_COUNT> trees_;
    DocumentFacts facts_;
};

} // namespace quelvarn
