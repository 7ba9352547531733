#include "ui/document_page/info_area.h"

#include "register/info_panel.h"
#include "register/relation_kinds.h"
#include "ui/adapters/viewer_qt.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/long_text.h"
#include "ui/controls/strip.h"
#include "ui/document_page/file_page.h"
#include "ui/document_page/file_picture.h"
#include "ui/document_page/general_page.h"
#include "ui/document_page/list_page.h"
#include "ui/document_page/list_pages.h"
#include "ui/document_page/relation_view.h"
#include "ui/text.h"
#include "ui/theme/colours.h"

#include <QHBoxLayout>
#include <QStackedWidget>

namespace quelvarn {

namespace {

// "FrmInfoDoku(1)"; the page of the sent-to list has a name of its own.
QString frameName(InfoPageId page)
{
    if (page == InfoPageId::SendTo)
        return QStringLiteral("FrmSendTo");
    if (page == InfoPageId::Tiff)
        return QStringLiteral("FrmTiff");
    return QStringLiteral("FrmInfoDoku(%1)").arg(static_cast<int>(page));
}

QLabel* newWarning(const char* name, const QString& text)
{
    auto* label = caption(text, TextRole::Caption, QLatin1String(name));
    label->setProperty("role", QStringLiteral("warning"));
    label->hide();
    return label;
}

} // namespace

InfoArea::InfoArea(InfoPanel& model, RelationActions& relationActions, QtViewer& viewer)
    : model_(model), heading_(new ShortLabel),
      LblNichtVorhanden_(newWarning("LblNichtVorhanden", QStringLiteral("Datei fehlt"))),
      LblAchtungRev_(newWarning("LblAchtungRev", QStringLiteral("neuere Revision"))), pages_(new QStackedWidget),
      empty_(new QWidget), general_(new GeneralView), file_(new FileView(model)), tiff_(new TiffPage(model.details())),
      TextKeywords_(new LongText("TextKeywords")), TextComments_(new LongText("TextComments"))
{
    buildPages(relationActions, viewer);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(newHeading());
    layout->addWidget(pages_, 1);
}

QWidget* InfoArea::newHeading()
{
    auto* heading = new Strip(Strip::Kind::HeadingRow, "InfoHead");
    heading_->setObjectName(QStringLiteral("LblInfo(0)"));
    setRole(*heading_, TextRole::Heading);
    heading->setMinimumHeight(30); // As high as the tabs beside it.
    heading->layoutRow().setContentsMargins(4, 0, 12, 0);
    heading->layoutRow().addWidget(heading_, 1);
    auto* warnings = new QVBoxLayout; // One above the other: the head beside them stays whole.
    warnings->setSpacing(0);
    for (QLabel* warning : {LblNichtVorhanden_, LblAchtungRev_})
        warnings->addWidget(warning, 0, Qt::AlignRight);
    heading->layoutRow().addLayout(warnings);
    return heading;
}

void InfoArea::buildPages(RelationActions& relationActions, QtViewer& viewer)
{
    pages_->addWidget(empty_);
    addPage(InfoPageId::General, general_);
    addPage(InfoPageId::File, file_);
    addPage(InfoPageId::StichKomm, newKeywordsPage());
    for (auto* newPage :
         {newRevisionPage, newUserDefPage, newStructureFeaturePage, newAdditionalDocumentPage, newSendToPage}) {
        lists_.push_back(newPage(model_));
        addPage(lists_.back()->page(), lists_.back());
    }
    addPage(InfoPageId::Tiff, tiff_);
    addPage(InfoPageId::Viewer, &viewer.place(ViewerPlace::Properties));
    for (const RelationNames& names : RELATION_NAMES) {
        QWidget& preview = viewer.place(relationKindOf(names.page).view);
        auto* view = new RelationView(model_.relation(), relationActions, names, preview);
        view->leave = [this] {
            if (toTable)
                toTable();
        };
        relation_.push_back(view);
        addPage(names.page, view);
    }
}

void InfoArea::addPage(InfoPageId page, QWidget* content)
{
    auto* frame = new QWidget;
    frame->setObjectName(frameName(page));
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins({});
    layout->addWidget(content);
    page_[page] = frame;
    pages_->addWidget(frame);
}

QWidget* InfoArea::newKeywordsPage()
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(4);
    layout->addWidget(caption(QStringLiteral("Stichwörter"), TextRole::Heading));
    layout->addWidget(TextKeywords_, 1);
    layout->addSpacing(4);
    layout->addWidget(caption(QStringLiteral("Kommentar"), TextRole::Heading));
    layout->addWidget(TextComments_, 2);
    return page;
}

void InfoArea::refresh()
{
    showHeading();
    general_->refresh(model_.general());
    file_->refresh();
    for (auto* view : relation_)
        view->refresh();
    TextKeywords_->showValue(toQt(model_.keywords().TextKeywords));
    TextComments_->showValue(toQt(model_.keywords().TextComments));
    for (ListPage* list : lists_)
        list->refresh();
    tiff_->refresh();
    const auto page = page_.find(model_.page());
    pages_->setCurrentWidget(page != page_.end() ? page->second : empty_);
}

void InfoArea::showHeading()
{
    heading_->setText(toQt(model_.heading()));
    const bool file = model_.page() == InfoPageId::File;
    LblNichtVorhanden_->setVisible(file ? !model_.file().exists : model_.general().missing);
    LblAchtungRev_->setVisible(model_.general().newerRevision);
}

} // namespace quelvarn
