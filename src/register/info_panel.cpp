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
constexpr std::array KEPT_PAGES{InfoPageId::File,      InfoPageId::StructureFeatures, InfoPageId::UserDefined,
                                InfoPageId::StichKomm, InfoPageId::ZusDoku,           InfoPageId::SendTo};
constexpr int STAYS = 2; // Only this mark brings the page up again; any other is forgotten.

struct NodePage
{
    std::string_view text;
    InfoPageId page;
    bool endsViewer = false; // The next row shows its general page again instead of the viewer.
};

constexpr std::array NODE_PAGES{
    NodePage{nodes::FILE, InfoPageId::File, true},
    NodePage{nodes::STRUCTURE_FEATURES, InfoPageId::StructureFeatures, true},
    NodePage{nodes::USER_DEFINED, InfoPageId::UserDefined},
    NodePage{nodes::KEYWORDS, InfoPageId::StichKomm},
    NodePage{nodes::ZUSDOKU, InfoPageId::ZusDoku},
    NodePage{nodes::SENT, InfoPageId::SendTo},
    NodePage{nodes::REVISION, InfoPageId::Revisions},
    NodePage{nodes::TIFF, InfoPageId::Tiff},
    NodePage{nodes::IN_ASSEMBLY, InfoPageId::InAssembly},
    NodePage{nodes::IN_DRAWING, InfoPageId::InDrawing},
    NodePage{nodes::IN_WELDMENT, InfoPageId::InWeldment},
    NodePage{nodes::CONSISTS_OF, InfoPageId::ConsistsOf},
    NodePage{nodes::CONTAINS, InfoPageId::Contains},
    NodePage{nodes::CONTAINS_ASSEMBLY, InfoPageId::ContainsAssembly},
};

// Intended: from row to row parts keep the key words, all other tables the file properties, and nothing else is kept.
int keepMark(int tab, InfoPageId page)
{
    const InfoPageId kept = DOCUMENT_TYPES[tab].key == "Part" ? InfoPageId::StichKomm : InfoPageId::File;
    return page == kept ? STAYS : 1;
}

} // namespace

InfoPanel::InfoPanel(SessionState& session, Operations& operations, DocumentTables& tables, TreePanel& tree,
                     ViewerArea& viewer, DocumentPanels& panels, ShownFiles& files)
    : session_(session), operations_(operations), tables_(tables), tree_(tree), viewer_(viewer), panels_(panels),
      files_(files), file_(session.AktDoku, session.Dateiinfo, operations.ports()), details_(session, operations),
      relation_(session.database.connection, session.rights, operations, tables, panels, files)
{}

std::string InfoPanel::heading() const
{
    return "  Eigenschaften " + session_.labels.singular(tables_.tab());
}

void InfoPanel::chooseNode(std::string_view text)
{
    if (!tree_.tree().find(text))
        return;
    operations_.perform(Part::Document, "Eigenschaften des Dokuments", "Fehler beim Anzeigen der Eigenschaften!", [&] {
        tree_.select(text);
        if (text == nodes::PROPERTIES)
            return showProperties();
        if (text == nodes::SMARTVIEWER) {
            if (!showViewer())
                showProperties();
            return;
        }
        if (text == nodes::PDF)
            return openPdf();
        const auto page = std::ranges::find(NODE_PAGES, text, &NodePage::text);
        if (text == nodes::FILE)
            readFile();
        keepPage(page->page);
        if (page->endsViewer)
            SeitenModus_ = 1;
        showPage(page->page);
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
        return tree_.select(nodes::SMARTVIEWER);
    SeitenModus_ = 1;
    showGeneralOrKept();
}

void InfoPanel::clear()
{
    SeitenModus_ = 1;
    showPage(InfoPageId::None);
    general_ = {};
    file_.clear();
    keywords_ = {};
    details_.clear();
}

void InfoPanel::keepPage(InfoPageId page)
{
    const auto place = std::ranges::find(KEPT_PAGES, page);
    if (!session_.Tree.Node || place == KEPT_PAGES.end())
        return;
    keptPage_.fill(0);
    keptPage_[static_cast<std::size_t>(place - KEPT_PAGES.begin())] = keepMark(tables_.tab(), page);
}

void InfoPanel::showProperties()
{
    tree_.select(nodes::PROPERTIES); // Also in place of a viewer that could not show the file.
    forgetKeptPage();
    SeitenModus_ = 1;
    fillGeneralPage();
    showGeneralOrKept();
}

void InfoPanel::fillGeneralPage()
{
    const DocumentTable& table = tables_.current();
    const bool fileExists =
        session_.Tree.Node ? session_.Dateiinfo.exists : operations_.ports().files.fileExists(table.record().filename);
    general_ = generalPage(table.record(), tree_.facts(), table.type(), session_.Tree.Verwendung, fileExists);
}

void InfoPanel::showGeneralOrKept()
{
    const auto place = std::ranges::find(keptPage_, STAYS);
    if (!session_.Tree.Node || place == keptPage_.end())
        return showPage(InfoPageId::General);
    const InfoPageId kept = KEPT_PAGES[static_cast<std::size_t>(place - keptPage_.begin())];
    tree_.select(std::ranges::find(NODE_PAGES, kept, &NodePage::page)->text);
    showPage(kept);
}

// A viewer behind another page would hold its file for nothing.
void InfoPanel::showPage(InfoPageId page)
{
    const DocumentTable& table = tables_.current();
    if (page_ == InfoPageId::Viewer && page != InfoPageId::Viewer)
        files_.clear(ViewerPlace::Properties);
    if (relation_.kind()) { // Below stands the document of its current row.
        relation_.clear();
        panels_.showDocument(table.record());
    }
    page_ = page;
    if (const RelationKind* kind = findRelationKind(page))
        relation_.fill(*kind);
    details_.fill(page, table.type(), table.record());
}

bool InfoPanel::showViewer()
{
    if (!showOrTell(files_, operations_.ports().boxes, ViewerPlace::Properties, tables_.current().record().filename))
        return false;
    SeitenModus_ = 2;
    showPage(InfoPageId::Viewer);
    return true;
}

void InfoPanel::openPdf()
{
    Ports& ports = operations_.ports();
    const DokuRecord& record = tables_.current().record();
    const std::string path = withExtension(record.filename, "pdf");
    if (findPdf(ports.files, record).empty())
        tellFileMissing(ports.boxes, path);
    else if (!ports.defaultApplication.open(path))
        ports.boxes.warn(std::string(nodes::PDF), lines({"Fehler beim Öffnen der Datei:", path}));
}

} // namespace quelvarn
