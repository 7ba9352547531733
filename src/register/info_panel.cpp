#include "register/info_panel.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "documents/document_tables.h"
#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/files.h"
#include "register/document_panels.h"
#include "register/document_questions.h"
#include "register/file_boxes.h"
#include "register/relation_kinds.h"
#include "register/tree_panel.h"
#include "register/viewer_area.h"
#include "session/session_state.h"
#include "viewing/shown_files.h"

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

InfoPanel::InfoPanel(SessionState& session, Operations& operations, DocumentTables& tables, TreePanel& tree,
                     ViewerArea& viewer, DocumentPanels& panels, GezeigteDateien& files)
    : session_(session), operations_(operations), tables_(tables), tree_(tree), viewer_(viewer), panels_(panels),
      files_(files), file_(session, operations.ports()), details_(session, operations),
      relation_(session, operations, tables, panels, files)
{}

std::string InfoPanel::heading() const
{
    return "  Eigenschaften " + session_.einzahl(tables_.tab());
}

void InfoPanel::chooseNode(std::string_view text)
{
    if (!tree_.tree().finde(text))
        return;
    operations_.perform(Part::Document, "Eigenschaften des Dokuments", "Fehler beim Anzeigen der Eigenschaften!", [&] {
        tree_.select(text);
        if (text == knoten::EIGENSCHAFTEN)
            return showProperties();
        if (text == knoten::SMARTVIEWER) {
            if (!showViewer())
                showProperties();
            return;
        }
        if (text == knoten::PDF)
            return openPdf();
        const auto page = std::ranges::find(KNOTENSEITEN, text, &Knotenseite::text);
        if (text == knoten::DATEI)
            readFile();
        keepPage(page->seite);
        if (page->beendetViewer)
            SeitenModus_ = 1;
        showPage(page->seite);
    });
}

void InfoPanel::setReadOnly(bool on)
{
    file_.setReadOnly(on);
    operations_.changed(Part::Document);
}

void InfoPanel::setArchive(bool on)
{
    file_.setArchive(on);
    operations_.changed(Part::Document);
}

void InfoPanel::showTemplate()
{
    viewer_.showTemplate(details_.LblPfadDateiVorlage());
}

void InfoPanel::readFile()
{
    file_.read(tables_.current().record().filename);
}

void InfoPanel::showRow()
{
    const DokuRecord& record = tables_.current().record();
    keywords_ = {record.Stichwoerter, record.Kommentar};
    panels_.showDocument(record);
    fillGeneralPage(); // Also beside the viewer: its warnings stand over every page.
    if (SeitenModus_ == 2 && showViewer())
        return tree_.select(knoten::SMARTVIEWER);
    SeitenModus_ = 1;
    showGeneralOrKept();
}

void InfoPanel::clear()
{
    SeitenModus_ = 1;
    showPage(InfoSeite::Keine);
    general_ = {};
    file_.clear();
    keywords_ = {};
    details_.leere();
}

void InfoPanel::keepPage(InfoSeite page)
{
    const auto place = std::ranges::find(MERKSEITEN, page);
    if (!session_.Tree.Knoten || place == MERKSEITEN.end())
        return;
    keptPage_.fill(0);
    keptPage_[static_cast<std::size_t>(place - MERKSEITEN.begin())] = merkwert(tables_.tab(), page);
}

void InfoPanel::showProperties()
{
    tree_.select(knoten::EIGENSCHAFTEN); // Also in place of a viewer that could not show the file.
    forgetKeptPage();
    SeitenModus_ = 1;
    fillGeneralPage();
    showGeneralOrKept();
}

void InfoPanel::fillGeneralPage()
{
    const DocumentTable& table = tables_.current();
    const bool fileExists = session_.Tree.Knoten ? session_.Dateiinfo.vorhanden
                                                 : operations_.ports().dateien.dateiVorhanden(table.record().filename);
    general_ = allgemeineSeite(table.record(), tree_.facts(), table.type(), session_.Tree.Verwendung, fileExists);
}

void InfoPanel::showGeneralOrKept()
{
    const auto place = std::ranges::find(keptPage_, BLEIBT);
    if (!session_.Tree.Knoten || place == keptPage_.end())
        return showPage(InfoSeite::Allgemein);
    const InfoSeite kept = MERKSEITEN[static_cast<std::size_t>(place - keptPage_.begin())];
    tree_.select(std::ranges::find(KNOTENSEITEN, kept, &Knotenseite::seite)->text);
    showPage(kept);
}

// A viewer behind another page would hold its file for nothing.
void InfoPanel::showPage(InfoSeite page)
{
    const DocumentTable& table = tables_.current();
    if (page_ == InfoSeite::Viewer && page != InfoSeite::Viewer)
        files_.leere(Ansicht::Eigenschaften);
    if (relation_.art()) { // Below stands the document of its current row.
        relation_.leere();
        panels_.showDocument(table.record());
    }
    page_ = page;
    if (const Verwendungsart* kind = findVerwendungsart(page))
        relation_.fuelle(*kind);
    details_.fuelle(page, table.type(), table.record());
}

bool InfoPanel::showViewer()
{
    if (!showOrTell(files_, operations_.ports().meldungen, Ansicht::Eigenschaften, tables_.current().record().filename))
        return false;
    SeitenModus_ = 2;
    showPage(InfoSeite::Viewer);
    return true;
}

void InfoPanel::openPdf()
{
    Ports& ports = operations_.ports();
    const DokuRecord& record = tables_.current().record();
    const std::string path = mitEndung(record.filename, "pdf");
    if (findPdf(ports.dateien, record).empty())
        meldeDateiFehlt(ports.meldungen, path);
    else if (!ports.standardanwendung.oeffne(path))
        ports.meldungen.warnung(std::string(knoten::PDF), zeilen({"Fehler beim Öffnen der Datei:", path}));
}

} // namespace quelvarn
