#include "ui/document_page/panels/date_panel.h"

#include "register/left_bar.h"
#include "ui/busy_pointer.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/panel_parts.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

namespace quelvarn {

Datumspanel::Datumspanel(LinkeLeiste& modell)
    : modell_(modell), OpErstAend_(new QButtonGroup(this)), ChAnwender_(neuesChAnwender()),
      SliderTage_(neuerSliderTage()), LblTage_(beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblTage"))),
      LblZeitRaum_(beschriftung({}, Rolle::Kopf, QStringLiteral("LblZeitRaum")))
{
    richtePanelEin(*this, "FrmFilternDatum");
    LblTage_->setMinimumWidth(LblTage_->fontMetrics().horizontalAdvance(QStringLiteral("365 Tage")));
    auto* oben = new QHBoxLayout;
    oben->addWidget(neuesFrmErstAend());
    oben->addSpacing(12);
    oben->addWidget(ChAnwender_);
    oben->addStretch(1);
    oben->addWidget(LblZeitRaum_);
    auto* unten = new QHBoxLayout;
    unten->addWidget(neuerKnopf("CmHeute", QStringLiteral("&Heute"), [this] { modell_.filter().heute(); }));
    unten->addWidget(
        neuerKnopf("CmNeu", QStringLiteral("&Zurückliegende Tage"), [this] { modell_.filter().letzteTage(); }));
    unten->addSpacing(4);
    unten->addWidget(SliderTage_, 1);
    unten->addWidget(LblTage_);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(8, 8, 8, 8);
    aufbau->setSpacing(6);
    aufbau->addLayout(oben);
    aufbau->addLayout(unten);
}

QWidget* Datumspanel::neuesFrmErstAend()
{
    auto* FrmErstAend = new QWidget;
    FrmErstAend->setObjectName(QStringLiteral("FrmErstAend"));
    auto* reihe = new QHBoxLayout(FrmErstAend);
    reihe->setContentsMargins({});
    for (const int feld : {0, 1}) {
        auto* option = neuesFeld<QRadioButton>(QStringLiteral("OpErstAend(%1)").arg(feld),
                                               feld == 0 ? QStringLiteral("Erstellt") : QStringLiteral("Geändert"));
        OpErstAend_->addButton(option, feld);
        reihe->addWidget(option);
    }
    connect(OpErstAend_, &QButtonGroup::idClicked, this,
            bewacht([this](int feld) { modell_.filter().setzeDatumsfeld(feld); }));
    return FrmErstAend;
}

QCheckBox* Datumspanel::neuesChAnwender()
{
    auto* kasten = neuesFeld<QCheckBox>("ChAnwender", QStringLiteral("nur &eigene Dokumente"));
    connect(kasten, &QCheckBox::clicked, this,
            bewacht([this](bool gesetzt) { modell_.filter().setzeNurEigene(gesetzt); }));
    return kasten;
}

QSlider* Datumspanel::neuerSliderTage()
{
    auto* schieber = new QSlider(Qt::Horizontal);
    schieber->setObjectName(QStringLiteral("SliderTage"));
    schieber->setAccessibleName(QStringLiteral("Zurückliegende Tage"));
    schieber->setRange(1, Schnellfilter::MAX_TAGE);
    schieber->setPageStep(7);
    connect(schieber, &QSlider::valueChanged, this, bewacht([this](int tage) { modell_.filter().setzeTage(tage); }));
    return schieber;
}

QWidget* Datumspanel::neuerKnopf(const char* name, const QString& text, const std::function<void()>& tue)
{
    auto* knopf = neuesFeld<QPushButton>(name, text);
    connect(knopf, &QPushButton::clicked, this, bewacht([tue] {
                const Sanduhr warten;
                tue();
            }));
    return knopf;
}

void Datumspanel::zeigen()
{
    const Schnellfilter& filter = modell_.filter();
    OpErstAend_->button(filter.OpErstAend())->setChecked(true);
    ChAnwender_->setChecked(filter.ChAnwender());
    const QSignalBlocker still(SliderTage_);
    SliderTage_->setValue(filter.SliderTage());
    LblTage_->setText(filter.SliderTage() == 1 ? QStringLiteral("1 Tag")
                                               : QStringLiteral("%1 Tage").arg(filter.SliderTage()));
    LblZeitRaum_->setText(zuQt(filter.LblZeitRaum()));
}

} // namespace quelvarn
