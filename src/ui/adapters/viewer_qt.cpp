#include "ui/adapters/viewer_qt.h"

#include "base/windows_path.h"
#include "platform/files.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/strip.h"
#include "ui/text.h"
#include "ui/theme/colours.h"
#include "ui/theme/document_signs.h"
#include "ui/theme/icons.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace quelvarn {

namespace {

constexpr int PICTURE_SIDE = 64;

} // namespace

DocumentPicture::DocumentPicture()
    : picture_(new QLabel), name_(new ShortLabel(nullptr, Qt::ElideMiddle)),
      folder_(new ShortLabel(nullptr, Qt::ElideMiddle))
{
    setRole(*name_, TextRole::Heading);
    setRole(*folder_, TextRole::Caption);
    name_->setAlignment(Qt::AlignHCenter);
    folder_->setAlignment(Qt::AlignHCenter);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(4);
    layout->addStretch(1);
    layout->addWidget(picture_, 0, Qt::AlignHCenter);
    layout->addWidget(name_);
    layout->addWidget(folder_);
    layout->addStretch(1);
}

void DocumentPicture::show(std::string_view filename)
{
    character_ = filename.empty() ? std::string_view() : documentSign(filename);
    name_->setText(toQt(DateiName(filename)));
    folder_->setText(toQt(Ordnername(filename)));
    draw();
}

void DocumentPicture::draw()
{
    picture_->setPixmap(
        character_.empty() ? QPixmap() : iconPicture(character_, PICTURE_SIDE, colourSet().muted, devicePixelRatioF()));
}

void DocumentPicture::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        draw();
}

QtViewer::QtViewer(const Files& files) : files_(files) {}

bool QtViewer::show(ViewerPlace view, std::string_view filename)
{
    const bool exists = files_.fileExists(filename);
    set(view, exists ? filename : std::string_view());
    return exists;
}

void QtViewer::clear(ViewerPlace view)
{
    set(view, {});
}

void QtViewer::set(ViewerPlace view, std::string_view filename)
{
    if (const auto& place = places_[static_cast<std::size_t>(view)])
        place->show(filename);
}

QWidget& QtViewer::place(ViewerPlace view)
{
    auto& place = places_[static_cast<std::size_t>(view)];
    if (!place)
        place = new DocumentPicture;
    return *place;
}

} // namespace quelvarn
