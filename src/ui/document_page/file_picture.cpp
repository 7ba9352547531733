#include "ui/document_page/file_picture.h"

#include "register/detail_pages.h"
#include "ui/controls/long_text.h"
#include "ui/controls/strip.h"
#include "ui/controls/tiff_view.h"
#include "ui/text.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quelvarn {

namespace {

QString systemPath(const DetailPages& details, const std::string& documentPath)
{
    return documentPath.empty() ? QString() : QString::fromStdU16String(details.systemPath(documentPath).u16string());
}

} // namespace

FilePictureView::FilePictureView(DetailPages& details)
    : details_(details), PicZusDoku_(new TiffView("PicZusDoku")), OLEAppZusDoku_(new LongText("OLEAppZusDoku"))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(PicZusDoku_);
    layout->addWidget(OLEAppZusDoku_);
    PicZusDoku_->notLoaded = [this] { details_.pictureNotLoaded(InfoPageId::ZusDoku); };
    hide();
}

void FilePictureView::refresh()
{
    const FilePicture& picture = details_.graphicAdditionalDocument();
    PicZusDoku_->display(systemPath(details_, picture.file));
    PicZusDoku_->setVisible(picture.kind == FilePicture::Kind::Picture);
    OLEAppZusDoku_->showValue(toQt(picture.text));
    OLEAppZusDoku_->setVisible(picture.kind == FilePicture::Kind::Text);
    setVisible(picture.kind != FilePicture::Kind::None);
}

TiffPage::TiffPage(DetailPages& details) : details_(details), picture_(new TiffView("PicTiff"))
{
    auto* heading = caption(QStringLiteral("TIFF-Dokument"), TextRole::Heading);
    heading->setContentsMargins(12, 8, 12, 4);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(heading);
    layout->addWidget(picture_, 1);
    picture_->notLoaded = [this] { details_.pictureNotLoaded(InfoPageId::Tiff); };
}

void TiffPage::refresh()
{
    picture_->display(systemPath(details_, details_.tiff()));
}

} // namespace quelvarn
