#include "register/document_facts.h"

#include "database/document_types.h"
#include "documents/document_record.h"
#include "register/document_questions.h"
#include "register/relation_kinds.h"
#include "register/relation_rows.h"
#include "session/local_settings.h"
#include "session/session_state.h"

#include <algorithm>
#include <initializer_list>

namespace quelvarn {
namespace {

// The pages that are asked for; what an assembly consists of is not asked, it always has something.
std::initializer_list<InfoPageId> relationsOf(const DocumentType& type)
{
    static constexpr auto DRAWING = {InfoPageId::Contains};
    static constexpr auto ASSEMBLY = {InfoPageId::InAssembly, InfoPageId::InDrawing, InfoPageId::InWeldment};
    static constexpr auto WELDMENT = {InfoPageId::InAssembly, InfoPageId::InDrawing, InfoPageId::ContainsAssembly};
    static constexpr auto OTHERS = {InfoPageId::InAssembly, InfoPageId::InDrawing};
    if (type.key == "Draft")
        return DRAWING;
    if (type.key == "Assemb")
        return ASSEMBLY;
    return type.key == "Weld" ? WELDMENT : OTHERS;
}

} // namespace

bool DocumentFacts::has(InfoPageId relation) const
{
    return std::ranges::find(relations, relation) != relations.end();
}

void findFacts(DocumentFacts& facts, const DokuRecord& record, const DocumentType& type, Connection& connection,
               const TreeSwitches& switches, const Ports& ports)
{
    const RevisionState state = revisionState(connection, type.table, record.DokuBez);
    facts.severalRevisions = state.several;
    facts.newerRevision = newerRevision(state, record);
    if (type.key == "Draft") {
        facts.tiff = switches.TIFFDoku && !findTiff(connection, ports.files, record).empty();
        facts.pdf = switches.PDFDoku && !findPdf(ports.files, record).empty();
    }
    if (!switches.Verwendung)
        return;
    std::string path = record.filename;
    UniversalNachLaufwerk(path, ports);
    for (const InfoPageId relation : relationsOf(type))
        if (hasRelation(connection, relationKindOf(relation), record, path))
            facts.relations.push_back(relation);
    facts.relationsAsked = true;
}

void findPropertyFacts(DocumentFacts& facts, const DokuRecord& record, const DocumentType& type, Connection& connection,
                       const TreeSwitches& switches)
{
    if (facts.properties)
        return;
    PropertyFacts& found = facts.properties.emplace();
    const bool ofFiles = type.specialTable == 0;
    if (switches.BenutzDef || (switches.Versendet && ofFiles)) {
        const UserDefinedRows rows = userDefinedRows(connection, type.tableUserDef, record);
        found.userDefined = rows.properties;
        found.sent = rows.sent;
    }
    found.additionalDocuments = switches.ZusDoku && ofFiles && hasAdditionalDocuments(connection, record.filename);
}

} // namespace quelvarn
