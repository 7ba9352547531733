#include "register/tree_builder.h"

#include "database/document_types.h"
#include "register/relations.h"
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
    : seite_(seite), typ_(typ), session_(session), ports_(ports)
{}

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

void BaumBauer::verwendung()
{
    DokuRecord& record = seite_.record;
    std::string pfad = record.filename;
    UniversalNachLaufwerk(pfad, ports_);

    const bool baugruppe = inBaugruppe(session_.Verbindung, record.DokuArt, pfad);
    record.inBaugruppe = jaNein(baugruppe);
    if (baugruppe)
        fuegeAn("EnthaltenInAssemb", knoten::IN_BAUGRUPPE);
    const bool zeichnung = inZeichnung(session_.Verbindung, pfad);
    record.inZeichnung = jaNein(zeichnung);
    if (zeichnung)
        fuegeAn("EnthaltenInDraft", knoten::IN_ZEICHNUNG);

    if (typ_.schluessel == "Assemb") {
        if (inSchweissteil(session_.Verbindung, pfad))
            fuegeAn("EnthaltenInWeld", knoten::IN_SCHWEISSTEIL);
        fuegeAn(knoten::BESTEHT_AUS, knoten::BESTEHT_AUS);
    }
    if (typ_.schluessel == "Weld" && schweissteilHatBaugruppe(session_.Verbindung, record))
        fuegeAn("EnthaeltAssemb", knoten::ENTHAELT_BAUGRUPPE);
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
    const bool modell = zeichnungHatModell(session_.Verbindung, record);
    record.inZeichnung = jaNein(modell);
    if (modell)
        fuegeAn(knoten::ENTHAELT, knoten::ENTHAELT);
}

} // namespace quelvarn
