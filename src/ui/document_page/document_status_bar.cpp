#include "ui/document_page/document_status_bar.h"

#include "register/document_panels.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/status_marks.h"
#include "ui/text.h"

#include <QHBoxLayout>

namespace quelvarn {

namespace {

constexpr int STATUS_LETTERS = 50; // A user's name and a status; a longer one is shortened.

} // namespace

StatusBarDatei::StatusBarDatei()
    : Strip(Kind::StatusRow, "StatusBarDatei"), fileName_(new ShortLabel),
      pathName_(new ShortLabel(nullptr, Qt::ElideMiddle)), LblKopfStatus_(new StatusCaption)
{
    fileName_->setObjectName(QStringLiteral("StatusBarDatei(2)"));
    LblKopfStatus_->setObjectName(QStringLiteral("LblKopfStatus"));
    setRole(*LblKopfStatus_, TextRole::Heading);
    LblKopfStatus_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); // The path gives way first.
    LblKopfStatus_->setMaximumWidth(LblKopfStatus_->fontMetrics().averageCharWidth() * STATUS_LETTERS);
    pathName_->setObjectName(QStringLiteral("StatusBarDatei(4)"));
    layoutRow().addWidget(caption(QStringLiteral("Dateiname"), TextRole::Small, QStringLiteral("StatusBarDatei(1)")));
    layoutRow().addWidget(fileName_);
    layoutRow().addSpacing(8);
    layoutRow().addWidget(caption(QStringLiteral("Pfadname"), TextRole::Small, QStringLiteral("StatusBarDatei(3)")));
    layoutRow().addWidget(pathName_, 1);
    layoutRow().addWidget(LblKopfStatus_);
}

void StatusBarDatei::refresh(const DocumentPanels& model)
{
    fileName_->setText(toQt(model.fileName()));
    pathName_->setText(toQt(model.folder()));
    LblKopfStatus_->setText(toQt(model.status().text));
    LblKopfStatus_->setColour(model.status().colour);
}

} // namespace quelvarn
