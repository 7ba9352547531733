#include "ui/filter_page/template_view.h"

#include "base/windows_path.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/strip.h"
#include "ui/text.h"
#include "ui/theme/colours.h"
#include "ui/theme/icons.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace quelvarn {

namespace {

constexpr int BILDSEITE = 64;

} // namespace

Vorlagenansicht::Vorlagenansicht()
    : bild_(new QLabel), name_(new KurzLabel), hinweis_(beschriftung({}, Rolle::Beschriftung))
{
    setObjectName(QStringLiteral("FrmVorlageSmartViewDraft"));
    auto* blatt = new QFrame;
    blatt->setObjectName(QStringLiteral("SEDraftVorlage"));
    name_->setObjectName(QStringLiteral("LblVorlage"));
    setzeRolle(*name_, Rolle::Titel);
    auto* inhalt = new QVBoxLayout(blatt);
    inhalt->addStretch(1);
    inhalt->addWidget(bild_, 0, Qt::AlignHCenter);
    inhalt->addWidget(name_, 0, Qt::AlignHCenter);
    inhalt->addWidget(hinweis_, 0, Qt::AlignHCenter);
    inhalt->addStretch(1);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(12, 12, 12, 12);
    aufbau->addWidget(blatt);
    zeigeBild();
}

void Vorlagenansicht::zeige(const QString& pfad)
{
    name_->setText(zuQt(DateiName(ausQt(pfad))));
    hinweis_->setText(pfad.isEmpty() ? QString() : QStringLiteral("Zeichnungsvorlage; hier ist kein Viewer vorhanden"));
}

void Vorlagenansicht::zeigeBild()
{
    bild_->setPixmap(symbolbild("doku", BILDSEITE, farbsatz().gedaempft, devicePixelRatioF()));
}

void Vorlagenansicht::changeEvent(QEvent* ereignis)
{
    QWidget::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange)
        zeigeBild();
}

} // namespace quelvarn
