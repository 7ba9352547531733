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
std::initializer_list<InfoSeite> relationsOf(const DokuTyp& type)
{
    static constexpr auto DRAWING = {InfoSeite::Enthaelt};
    static constexpr auto ASSEMBLY = {InfoSeite::InBaugruppe, InfoSeite::InZeichnung, InfoSeite::InSchweissteil};
    static constexpr auto WELDMENT = {InfoSeite::InBaugruppe, InfoSeite::InZeichnung, InfoSeite::EnthaeltBaugruppe};
    static constexpr auto OTHERS = {InfoSeite::InBaugruppe, InfoSeite::InZeichnung};
    if (type.schluessel == "Draft")
        return DRAWING;
    if (type.schluessel == "Assemb")
        return ASSEMBLY;
    return type.schluessel == "Weld" ? WELDMENT : OTHERS;
}

} // namespace

bool DocumentFacts::has(InfoSeite relation) const
{
    return std::ranges::find(relations, relation) != relations.end();
}

void findFacts(DocumentFacts& facts, const DokuRecord& record, const DokuTyp& type, SessionState& session,
               const Ports& ports)
{
    const Revisionsstand stand = revisionsstand(session.database.Verbindung, type.tabelle, record.DokuBez);
    facts.severalRevisions = stand.mehrere;
    facts.newerRevision = neuereRevision(stand, record);
    if (type.schluessel == "Draft") {
        facts.tiff = session.Tree.TIFFDoku && !findTiff(session.database.Verbindung, ports.dateien, record).empty();
        facts.pdf = session.Tree.PDFDoku && !findPdf(ports.dateien, record).empty();
    }
    if (!session.Tree.Verwendung)
        return;
    std::string path = record.filename;
    UniversalNachLaufwerk(path, ports);
    for (const InfoSeite relation : relationsOf(type))
        if (gibtEsVerwendung(session.database.Verbindung, verwendungsartVon(relation), record, path))
            facts.relations.push_back(relation);
    facts.relationsAsked = true;
}

void findPropertyFacts(DocumentFacts& facts, const DokuRecord& record, const DokuTyp& type, SessionState& session)
{
    if (facts.properties)
        return;
    PropertyFacts& found = facts.properties.emplace();
    const Baumschalter& switches = session.Tree;
    const bool ofFiles = type.sondertabelle == 0;
    if (switches.BenutzDef || (switches.Versendet && ofFiles)) {
        const Benutzerzeilen rows = benutzerzeilen(session.database.Verbindung, type.tabelleBenutzDef, record);
        found.userDefined = rows.eigenschaften;
        found.sent = rows.versendet;
    }
    found.additionalDocuments =
        switches.ZusDoku && ofFiles && hatZusatzdokumente(session.database.Verbindung, record.filename);
}

} // namespace quelvarn
