#include "register/tree_builder.h"

#include "database/document_types.h"
#include "documents/document_record.h"
#include "register/document_facts.h"
#include "register/relation_kinds.h"
#include "session/tree_switches.h"

#include <numeric>

namespace quelvarn {
namespace {

Knoten node(std::string_view key, std::string_view text)
{
    return {std::string(key), std::string(text), false, false, {}};
}

// Values that cancel to zero count as none, and only the first three features count.
bool hasMainFeatures(const DokuRecord& record)
{
    const double sum = std::accumulate(record.Hauptwert.begin(), record.Hauptwert.end(), 0.0);
    return sum != 0 || !record.Hauptmerkmal[0].empty() || !record.Hauptmerkmal[1].empty() ||
           !record.Hauptmerkmal[2].empty();
}

Knoten propertiesNode(const DokuRecord& record, const DocumentFacts& facts, const DokuTyp& type,
                      const Baumschalter& switches)
{
    Knoten properties = node("KeyEigen", knoten::EIGENSCHAFTEN);
    const auto child = [&](bool there, std::string_view text) {
        if (there)
            properties.kinder.push_back(node("", text));
    };
    child(true, knoten::DATEI);
    if (!facts.properties)
        return properties;
    const bool ofFiles = type.sondertabelle == 0;
    child(switches.HauptMerk && hasMainFeatures(record), knoten::HAUPTMERKMALE);
    child(switches.BenutzDef && facts.properties->userDefined, knoten::BENUTZDEF);
    child(switches.Versendet && ofFiles && facts.properties->sent, knoten::VERSENDET);
    child(switches.StichKomm && !(record.Stichwoerter.empty() && record.Kommentar.empty()), knoten::STICHKOMM);
    child(facts.properties->additionalDocuments, knoten::ZUSDOKU);
    return properties;
}

// The keys of the nodes of composition and where-used, in their order.
struct RelationNode
{
    InfoSeite page;
    std::string_view key;
};
constexpr std::array RELATION_NODES{
    RelationNode{InfoSeite::Enthaelt, knoten::ENTHAELT},
    RelationNode{InfoSeite::InBaugruppe, "EnthaltenInAssemb"},
    RelationNode{InfoSeite::InZeichnung, "EnthaltenInDraft"},
    RelationNode{InfoSeite::InSchweissteil, "EnthaltenInWeld"},
    RelationNode{InfoSeite::EnthaeltBaugruppe, "EnthaeltAssemb"},
};

} // namespace

Eigenschaftsbaum treeOf(const DokuRecord& record, const DocumentFacts& facts, const DokuTyp& type,
                        const Baumschalter& switches)
{
    Eigenschaftsbaum tree;
    tree.BaumAufgebaut = facts.properties.has_value();
    const auto add = [&](std::string_view key, std::string_view text) { tree.wurzeln.push_back(node(key, text)); };
    tree.wurzeln.push_back(propertiesNode(record, facts, type, switches));
    tree.wurzeln.front().offen = switches.Knoten;
    if (type.sondertabelle == 0 && switches.Revision && (record.RevBez != "0" || facts.severalRevisions)) {
        add(knoten::REVISION, knoten::REVISION);
        tree.wurzeln.back().rot = facts.newerRevision;
    }
    add("KeySmartView", knoten::SMARTVIEWER);
    if (facts.tiff)
        add(knoten::TIFF, knoten::TIFF);
    if (facts.pdf)
        add(knoten::PDF, knoten::PDF);
    for (const auto& [page, key] : RELATION_NODES)
        if (facts.has(page))
            add(key, verwendungsartVon(page).knoten);
    if (switches.Verwendung && type.schluessel == "Assemb")
        add(knoten::BESTEHT_AUS, knoten::BESTEHT_AUS);
    return tree;
}

} // namespace quelvarn
