#include "base/text.h"
#include "base/windows_path.h"
#include "platform/dateien.h"
#include "platform/meldungen.h"
#include "platform/zwischenablage.h"
#include "register/document_page.h"
#include "register/document_questions.h"
#include "register/file_boxes.h"
#include "register/tree_builder.h"
#include "register/usage_kinds.h"
#include "use/shown_files.h"

#include <algorithm>

namespace quelvarn {
namespace {

// The pages that a row change may keep, by their index in SeitenMerker.
constexpr std::array MERKSEITEN{InfoSeite::Datei,     InfoSeite::Hauptmerkmale, InfoSeite::BenutzDef,
                                InfoSeite::StichKomm, InfoSeite::ZusDoku,       InfoSeite::SendTo};
constexpr int BLEIBT = 2; // Only this mark brings the page up again; any other is forgotten.

struct Knotenseite
{
    std::string_view text;
    InfoSeite seite;
    bool beendetViewer = false; // The next row shows its general page again instead of the viewer.
};

constexpr std::array KNOTENSEITEN{
    Knotenseite{knoten::DATEI, InfoSeite::Datei, true},
    Knotenseite{knoten::HAUPTMERKMALE, InfoSeite::Hauptmerkmale, true},
    Knotenseite{knoten::BENUTZDEF, InfoSeite::BenutzDef},
    Knotenseite{knoten::STICHKOMM, InfoSeite::StichKomm},
    Knotenseite{knoten::ZUSDOKU, InfoSeite::ZusDoku},
    Knotenseite{knoten::VERSENDET, InfoSeite::SendTo},
    Knotenseite{knoten::REVISION, InfoSeite::Revisionen},
    Knotenseite{knoten::TIFF, InfoSeite::Tiff},
    Knotenseite{knoten::IN_BAUGRUPPE, InfoSeite::InBaugruppe},
    Knotenseite{knoten::IN_ZEICHNUNG, InfoSeite::InZeichnung},
    Knotenseite{knoten::IN_SCHWEISSTEIL, InfoSeite::InSchweissteil},
    Knotenseite{knoten::BESTEHT_AUS, InfoSeite::BestehtAus},
    Knotenseite{knoten::ENTHAELT, InfoSeite::Enthaelt},
    Knotenseite{knoten::ENTHAELT_BAUGRUPPE, InfoSeite::EnthaeltBaugruppe},
};

// Intended: from row to row parts keep the key words, all other tables the file properties, and nothing else is kept.
int merkwert(int tab, InfoSeite seite)
{
    const InfoSeite bleibende = DOKUTYPEN[tab].schluessel == "Part" ? InfoSeite::StichKomm : InfoSeite::Datei;
    return seite == bleibende ? BLEIBT : 1;
}

} // namespace

void DocumentPage::knotenGewaehlt(std::string_view text)
{
    if (!tree().finde(text))
        return;
    operations_.perform(Part::Document, "Eigenschaften des Dokuments", "Fehler beim Anzeigen der Eigenschaften!", [&] {
        treeInFront().gewaehlt = text;
        if (text == knoten::EIGENSCHAFTEN)
            return zeigeEigenschaften();
        if (text == knoten::SMARTVIEWER) {
            if (!zeigeViewer())
                zeigeEigenschaften();
            return;
        }
        if (text == knoten::PDF)
            return oeffnePdf();
        const auto knotenseite = std::ranges::find(KNOTENSEITEN, text, &Knotenseite::text);
        if (text == knoten::DATEI)
            leseDatei();
        merkeSeite(knotenseite->seite);
        if (knotenseite->beendetViewer)
            seitenModus_ = 1;
        zeigeSeite(knotenseite->seite);
    });
}

void DocumentPage::knotenAufgeklappt()
{
    operations_.report(Part::Document, [&] { KinderAufbauen(); });
}

void DocumentPage::KinderAufbauen()
{
    Eigenschaftsbaum& tree = treeInFront();
    if (tree.wurzeln.empty())
        return;
    const DokuRecord& record = table().record();
    operations_.report([&] { findPropertyFacts(facts_, record, table().type(), session_); });
    std::string chosen = std::move(tree.gewaehlt);
    tree = treeOf(record, facts_, table().type(), session_.Tree);
    tree.gewaehlt = std::move(chosen);
    tree.wurzeln.front().offen = true;
}

void DocumentPage::knotenZugeklappt()
{
    if (!tree().wurzeln.empty())
        treeInFront().wurzeln.front().offen = false;
    operations_.changed(Part::Document);
}

void DocumentPage::merkeSeite(InfoSeite seite)
{
    const auto merker = std::ranges::find(MERKSEITEN, seite);
    if (!session_.Tree.Knoten || merker == MERKSEITEN.end())
        return;
    seitenMerker_.fill(0);
    seitenMerker_[static_cast<std::size_t>(merker - MERKSEITEN.begin())] = merkwert(tab(), seite);
}

void DocumentPage::zeigeEigenschaften()
{
    seitenMerker_.fill(0);
    seitenModus_ = 1;
    zeigeAllgemein();
}

void DocumentPage::fillGeneralPage()
{
    const DokuRecord& record = table().record();
    const bool vorhanden =
        session_.Tree.Knoten ? session_.Dateiinfo.vorhanden : ports_.dateien.dateiVorhanden(record.filename);
    allgemein_ = allgemeineSeite(record, facts_, table().type(), session_.Tree.Verwendung, vorhanden);
}

void DocumentPage::zeigeAllgemein()
{
    const auto merker = std::ranges::find(seitenMerker_, BLEIBT);
    const bool bleibt = session_.Tree.Knoten && merker != seitenMerker_.end();
    if (!bleibt)
        return zeigeSeite(InfoSeite::Allgemein);
    const InfoSeite kept = MERKSEITEN[static_cast<std::size_t>(merker - seitenMerker_.begin())];
    treeInFront().gewaehlt = std::ranges::find(KNOTENSEITEN, kept, &Knotenseite::seite)->text;
    zeigeSeite(kept);
}

// A viewer behind another page would hold its file for nothing.
void DocumentPage::zeigeSeite(InfoSeite seite)
{
    if (infoSeite_ == InfoSeite::Viewer && seite != InfoSeite::Viewer)
        gezeigt_.leere(Ansicht::Eigenschaften);
    if (verwendung_.art()) { // Below stands the document of its current row.
        verwendung_.leere();
        tellOwnDocument();
    }
    infoSeite_ = seite;
    if (const Verwendungsart* art = findVerwendungsart(seite))
        verwendung_.fuelle(*art);
    details_.fuelle(seite, table().type(), table().record());
}

bool DocumentPage::zeigeViewer()
{
    if (!zeigeOderBox(Ansicht::Eigenschaften, table().record().filename))
        return false;
    seitenModus_ = 2;
    zeigeSeite(InfoSeite::Viewer);
    return true;
}

void DocumentPage::oeffnePdf()
{
    const DokuRecord& record = table().record();
    const std::string pfad = mitEndung(record.filename, "pdf");
    if (findPdf(ports_.dateien, record).empty())
        meldeDateiFehlt(ports_.meldungen, pfad);
    else if (!ports_.standardanwendung.oeffne(pfad))
        ports_.meldungen.warnung(std::string(knoten::PDF), zeilen({"Fehler beim Öffnen der Datei:", pfad}));
}

} // namespace quelvarn
