#include "register/tree_builder.h"

#include "database/document_types.h"
#include "documents/document_record.h"
#include "register/document_facts.h"
#include "register/relation_kinds.h"
#include "session/tree_switches.h"

#include <numeric>

namespace quelvarn {
namespace {

Node node(std::string_view key, std::string_view text)
{
    return {std::string(key), std::string(text), false, false, {}};
}

// Values that cancel to zero count as none, and only the first three features count.
bool hasMainFeatures(const DokuRecord& record)
{
    const double sum = std::accumulate(record.Hauptwert.begin(), record.Hauptwert.end(), 0.0);
    return sum != 0 || !record.StructureFeature[0].empty() || !record.StructureFeature[1].empty() ||
           !record.StructureFeature[2].empty();
}

Node propertiesNode(const DokuRecord& record, const DocumentFacts& facts, const DocumentType& type,
                    const TreeSwitches& switches)
{
    Node properties = node("KeyEigen", nodes::PROPERTIES);
    const auto child = [&](bool there, std::string_view text) {
        if (there)
            properties.children.push_back(node("", text));
    };
    child(true, nodes::FILE);
    if (!facts.properties)
        return properties;
    const bool ofFiles = type.specialTable == 0;
    child(switches.HauptMerk && hasMainFeatures(record), nodes::STRUCTURE_FEATURES);
    child(switches.BenutzDef && facts.properties->userDefined, nodes::USER_DEFINED);
    child(switches.Versendet && ofFiles && facts.properties->sent, nodes::SENT);
    child(switches.StichKomm && !(record.Stichwoerter.empty() && record.Kommentar.empty()), nodes::KEYWORDS);
    child(facts.properties->additionalDocuments, nodes::ZUSDOKU);
    return properties;
}

// The keys of the nodes of composition and where-used, in their order.
struct RelationNode
{
    InfoPageId page;
    std::string_view key;
};
constexpr std::array RELATION_NODES{
    RelationNode{InfoPageId::Contains, nodes::CONTAINS},
    RelationNode{InfoPageId::InAssembly, "EnthaltenInAssemb"},
    RelationNode{InfoPageId::InDrawing, "EnthaltenInDraft"},
    RelationNode{InfoPageId::InWeldment, "EnthaltenInWeld"},
    RelationNode{InfoPageId::ContainsAssembly, "EnthaeltAssemb"},
};

} // namespace

PropertyTree treeOf(const DokuRecord& record, const DocumentFacts& facts, const DocumentType& type,
                    const TreeSwitches& switches)
{
    PropertyTree tree;
    tree.BaumAufgebaut = facts.properties.has_value();
    const auto add = [&](std::string_view key, std::string_view text) { tree.roots.push_back(node(key, text)); };
    tree.roots.push_back(propertiesNode(record, facts, type, switches));
    tree.roots.front().open = switches.Node;
    if (type.specialTable == 0 && switches.Revision && (record.RevBez != "0" || facts.severalRevisions)) {
        add(nodes::REVISION, nodes::REVISION);
        tree.roots.back().red = facts.newerRevision;
    }
    add("KeySmartView", nodes::SMARTVIEWER);
    if (facts.tiff)
        add(nodes::TIFF, nodes::TIFF);
    if (facts.pdf)
        add(nodes::PDF, nodes::PDF);
    for (const auto& [page, key] : RELATION_NODES)
        if (facts.has(page))
            add(key, relationKindOf(page).node);
    if (switches.Verwendung && type.key == "Assemb")
        add(nodes::CONSISTS_OF, nodes::CONSISTS_OF);
    return tree;
}

} // namespace quelvarn
