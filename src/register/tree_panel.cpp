#include "register/tree_panel.h"

#include "documents/document_tables.h"
#include "register/tree_builder.h"
#include "session/session_state.h"

#include <string>
#include <utility>

namespace quelvarn {

void TreePanel::BaumAufbauen(int tab)
{
    const DocumentTable& table = tables_[tab];
    const DokuRecord& record = table.record();
    facts_ = {};
    operations_.report([&] {
        if (switches_.Node)
            findPropertyFacts(facts_, record, table.type(), connection_, switches_);
        findFacts(facts_, record, table.type(), connection_, switches_, operations_.ports());
    });
    trees_[static_cast<std::size_t>(tab)] = treeOf(record, facts_, table.type(), switches_);
}

void TreePanel::unfold()
{
    operations_.report(Part::Document, [&] { KinderAufbauen(); });
}

void TreePanel::KinderAufbauen()
{
    PropertyTree& tree = inFront();
    if (tree.roots.empty())
        return;
    const DocumentTable& table = tables_.current();
    operations_.report([&] { findPropertyFacts(facts_, table.record(), table.type(), connection_, switches_); });
    std::string chosen = std::move(tree.chosen);
    tree = treeOf(table.record(), facts_, table.type(), switches_);
    tree.chosen = std::move(chosen);
    tree.roots.front().open = true;
}

void TreePanel::fold()
{
    if (!inFront().roots.empty())
        inFront().roots.front().open = false;
    operations_.changed(Part::Document);
}

void TreePanel::select(std::string_view node)
{
    inFront().chosen = node;
}

void TreePanel::clear(int tab)
{
    trees_[static_cast<std::size_t>(tab)].clear();
    facts_ = {};
}

const PropertyTree& TreePanel::tree() const
{
    return tree(tables_.tab());
}

PropertyTree& TreePanel::inFront()
{
    return trees_[static_cast<std::size_t>(tables_.tab())];
}

} // namespace quelvarn
