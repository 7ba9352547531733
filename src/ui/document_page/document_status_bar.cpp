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
    : Streifen(Art::Statuszeile, "StatusBarDatei"), dateiname_(new KurzLabel),
      pfadname_(new KurzLabel(nullptr, Qt::ElideMiddle)), LblKopfStatus_(new Statustext)
{
    dateiname_->setObjectName(QStringLiteral("StatusBarDatei(2)"));
    LblKopfStatus_->setObjectName(QStringLiteral("LblKopfStatus"));
    setzeRolle(*LblKopfStatus_, Rolle::Kopf);
    LblKopfStatus_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); // The path gives way first.
    LblKopfStatus_->setMaximumWidth(LblKopfStatus_->fontMetrics().averageCharWidth() * STATUS_LETTERS);
    pfadname_->setObjectName(QStringLiteral("StatusBarDatei(4)"));
    reihe().addWidget(beschriftung(QStringLiteral("Dateiname"), Rolle::Klein, QStringLiteral("StatusBarDatei(1)")));
    reihe().addWidget(dateiname_);
    reihe().addSpacing(8);
    reihe().addWidget(beschriftung(QStringLiteral("Pfadname"), Rolle::Klein, QStringLiteral("StatusBarDatei(3)")));
    reihe().addWidget(pfadname_, 1);
    reihe().addWidget(LblKopfStatus_);
}

void StatusBarDatei::zeigen(const DocumentPanels& modell)
{
    dateiname_->setText(zuQt(modell.fileName()));
    pfadname_->setText(zuQt(modell.folder()));
    LblKopfStatus_->setText(zuQt(modell.status().text));
    LblKopfStatus_->setzeFarbe(modell.status().farbe);
}

} // namespace quelvarn
