#include "register/relation_page.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "database/document_types.h"
#include "documents/document_tables.h"
#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/files.h"
#include "register/document_panels.h"
#include "register/relation_kinds.h"
#include "session/error_report.h"
#include "session/local_settings.h"
#include "viewing/shown_files.h"

namespace quelvarn {

namespace {

void tellOtherStatus(Boxes& boxes)
{
    boxes.warn("Status der Baugruppe", lines({
                                           "ACHTUNG!",
                                           "Bestandteile der Baugruppe haben einen",
                                           "anderen Status als die Baugruppe.",
                                       }));
}

void tellNoAccess(Boxes& boxes, std::string_view toUnfold)
{
    boxes.warn("Keine Zugriffsberechtigung",
               lines({"ACHTUNG!", "Sie haben " + std::string(toUnfold) + " keine Zugriffsberechtigung."}));
}

void tellNoPreview(Boxes& boxes, const std::string& filename)
{
    boxes.warn("Anzeigen im Viewer", lines({
                                         "Die Datei:",
                                         filename,
                                         "konnte nicht geöffnet werden!",
                                         "Mögliche Ursache:",
                                         "- Falscher Pfad- und/oder Dateiname.",
                                         "- Kein Zugriffsrecht.",
                                     }));
}

} // namespace

RelationPage::RelationPage(Connection& connection, const Rights& rights, Operations& operations,
                           const DocumentTables& tables, DocumentPanels& panels, ShownFiles& shown)
    : connection_(connection), rights_(rights), operations_(operations), ports_(operations.ports()), shown_(shown),
      tables_(tables), panels_(panels)
{}

void RelationPage::perform(const std::function<void()>& operation)
{
    if (!hasRows())
        return;
    operations_.perform(Part::Document, kind_->node, "Fehler beim Anzeigen der Verwendung!", operation);
}

// --- filling ---------------------------------------------------------------------------------------------------

void RelationPage::fill(const RelationKind& kind)
{
    clear();
    kind_ = &kind;
    const DokuRecord& record = tables_.current().record();
    std::string documentPath = record.filename;
    UniversalNachLaufwerk(documentPath, ports_);
    rows_ = relationRows(connection_, kind, record, documentPath);
    readRow();
}

void RelationPage::clear()
{
    clearPreview();
    kind_ = nullptr;
    rows_ = Recordset();
    ++generation_; // A grid must see that its rows are gone.
    filename_.clear();
    document_ = {};
    graphic_ = false;
}

void RelationPage::readRow()
{
    document_ = {};
    filename_.clear();
    if (!hasRows())
        return;
    filename_ = rows_.Text(kind_->fields.filename);
    document_ = documentAt(connection_, *kind_, rows_);
}

// --- the current row -------------------------------------------------------------------------------------------

void RelationPage::rowChosen(std::size_t position)
{
    perform([&] {
        if (position >= rows_.RecordCount())
            return;
        rows_.setPosition(position);
        clearPreview();
        readRow();
        if (kind_->page == InfoPageId::ConsistsOf)
            checkComponent();
        if (graphic_ && (kind_->page == InfoPageId::ConsistsOf || hasAccess()))
            loadPreview();
        panels_.showFile(filename_);
    });
}

// The special tables have no status scope.
bool RelationPage::liesInStatusRange() const
{
    return !document_.type || document_.SondertabelleNr != 0 ||
           isVisible(connection_, *document_.type, filename_, rights_.WhereStatus);
}

// Tells that a component lies outside the statuses of the user, and lets him see it all the same.
void RelationPage::checkComponent()
{
    if (!liesInStatusRange())
        tellOtherStatus(ports_.boxes);
}

bool RelationPage::hasAccess()
{
    const bool access = liesInStatusRange();
    if (!access)
        tellNoAccess(ports_.boxes, kind_->accessTo);
    return access;
}

// --- preview ---------------------------------------------------------------------------------------------------

bool RelationPage::loadPreview()
{
    if (ports_.files.fileExists(filename_) && shown_.show(kind_->view, filename_))
        return true;
    clearPreview();
    tellNoPreview(ports_.boxes, filename_);
    return false;
}

void RelationPage::clearPreview()
{
    if (showsPreview())
        shown_.clear(kind_->view);
}

bool RelationPage::showsPreview() const
{
    return kind_ && !shown_.file(kind_->view).empty();
}

void RelationPage::setGraphic(bool ChViewGrafik)
{
    graphic_ = ChViewGrafik;
    perform([&] {
        if (!ChViewGrafik)
            clearPreview();
        else if (kind_->page == InfoPageId::ConsistsOf || hasAccess())
            loadPreview();
        panels_.showFile(filename_);
    });
}

void RelationPage::openInViewer()
{
    perform([&] {
        if (!usable() || !hasAccess() || !loadPreview())
            return;
        graphic_ = true;
        panels_.showFile(filename_);
    });
}

// --- what can be done with the document ------------------------------------------------------------------------

void RelationPage::pathToClipboard()
{
    perform([&] {
        if (usable())
            ports_.clipboard.setText(filename_);
    });
}

} // namespace quelvarn
