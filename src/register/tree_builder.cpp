#include "register/tree_builder.h"

#include "database/document_types.h"
#include "register/relations.h"
#include "register/usage_kinds.h"
#include "register/usage_rows.h"
#include "session/local_settings.h"
#include "session/session_state.h"

namespace quelvarn {
namespace {

std::string jaNein(bool ja)
{
    return ja ? "Ja" : "Nein";
}

} // namespace

BaumBauer::BaumBauer(Tabellenseite& seite, const DokuTyp& typ, SessionState& session, const Ports& ports)
    : seite_(seite), typ_(typ), session_(session), ports_(ports), pfad_(seite.record.filename)
{
    UniversalNachLaufwerk(pfad_, ports);
}

void BaumBauer::fuegeAn(std::string_view schluessel, std::string_view text)
{
    seite_.baum.wurzeln.push_back({std::string(schluessel), std::string(text), false, false, {}});
}

void BaumBauer::fuegeKindAn(std::string_view text)
{
    seite_.baum.wurzeln.front().kinder.push_back({"", std::string(text), false, false, {}});
}

void BaumBauer::eigenschaften()
{
    fuegeAn("KeyEigen", knoten::EIGENSCHAFTEN);
    seite_.baum.wurzeln.front().offen = session_.Tree.Knoten;
    fuegeKindAn(knoten::DATEI);
}

void BaumBauer::obersteEbene()
{
    revision();
    fuegeAn("KeySmartView", knoten::SMARTVIEWER);
    if (typ_.schluessel == "Draft")
        zeichnung();
    else if (session_.Tree.Verwendung)
        verwendung();
}

void BaumBauer::revision()
{
    DokuRecord& record = seite_.record;
    const Revisionsstand stand = revisionsstand(session_.Verbindung, typ_.tabelle, record.DokuBez);
    record.neuereRevision = neuereRevision(stand, record);
    if (typ_.sondertabelle != 0 || !session_.Tree.Revision)
        return;
    if (record.RevBez == "0" && !stand.mehrere)
        return;
    fuegeAn(knoten::REVISION, knoten::REVISION);
    seite_.baum.wurzeln.back().rot = record.neuereRevision;
}

// Adds the node when the link tables know of something.
bool BaumBauer::fuegeVerwendungAn(InfoSeite seite, std::string_view schluessel)
{
    const Verwendungsart& art = verwendungsartVon(seite);
    if (!gibtEsVerwendung(session_.Verbindung, art, seite_.record, pfad_))
        return false;
    fuegeAn(schluessel, art.knoten);
    return true;
}

void BaumBauer::verwendung()
{
    DokuRecord& record = seite_.record;
    record.inBaugruppe = jaNein(fuegeVerwendungAn(InfoSeite::InBaugruppe, "EnthaltenInAssemb"));
    record.inZeichnung = jaNein(fuegeVerwendungAn(InfoSeite::InZeichnung, "EnthaltenInDraft"));
    if (typ_.schluessel == "Assemb") {
        fuegeVerwendungAn(InfoSeite::InSchweissteil, "EnthaltenInWeld");
        fuegeAn(knoten::BESTEHT_AUS, knoten::BESTEHT_AUS);
    }
    if (typ_.schluessel == "Weld")
        fuegeVerwendungAn(InfoSeite::EnthaeltBaugruppe, "EnthaeltAssemb");
}

void BaumBauer::zeichnung()
{
    DokuRecord& record = seite_.record;
    if (session_.Tree.TIFFDoku && !findTiff(session_.Verbindung, ports_.dateien, record).empty())
        fuegeAn(knoten::TIFF, knoten::TIFF);
    if (session_.Tree.PDFDoku && !findPdf(ports_.dateien, record).empty())
        fuegeAn(knoten::PDF, knoten::PDF);
    if (!session_.Tree.Verwendung)
        return;
    record.inZeichnung = jaNein(fuegeVerwendungAn(InfoSeite::Enthaelt, knoten::ENTHAELT));
}

} // namespace quelvarn
