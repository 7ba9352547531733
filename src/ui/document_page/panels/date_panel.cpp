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

DatePanel::DatePanel(LeftBar& model)
    : model_(model), OpErstAend_(new QButtonGroup(this)), ChAnwender_(newChAnwender()), SliderTage_(newSliderTage()),
      dayCount_(caption({}, TextRole::Caption, QStringLiteral("LblTage"))),
      LblZeitRaum_(caption({}, TextRole::Heading, QStringLiteral("LblZeitRaum")))
{
    setUpPanel(*this, "FrmFilternDatum");
    dayCount_->setMinimumWidth(dayCount_->fontMetrics().horizontalAdvance(QStringLiteral("365 Tage")));
    auto* above = new QHBoxLayout;
    above->addWidget(newFrmErstAend());
    above->addSpacing(12);
    above->addWidget(ChAnwender_);
    above->addStretch(1);
    above->addWidget(LblZeitRaum_);
    auto* below = new QHBoxLayout;
    below->addWidget(newButton("CmHeute", QStringLiteral("&Heute"), [this] { model_.filter().today(); }));
    below->addWidget(
        newButton("CmNeu", QStringLiteral("&Zurückliegende Tage"), [this] { model_.filter().lastDays(); }));
    below->addSpacing(4);
    below->addWidget(SliderTage_, 1);
    below->addWidget(dayCount_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(6);
    layout->addLayout(above);
    layout->addLayout(below);
}

QWidget* DatePanel::newFrmErstAend()
{
    auto* FrmErstAend = new QWidget;
    FrmErstAend->setObjectName(QStringLiteral("FrmErstAend"));
    auto* layoutRow = new QHBoxLayout(FrmErstAend);
    layoutRow->setContentsMargins({});
    for (const int field : {0, 1}) {
        auto* option = newField<QRadioButton>(QStringLiteral("OpErstAend(%1)").arg(field),
                                              field == 0 ? QStringLiteral("Erstellt") : QStringLiteral("Geändert"));
        OpErstAend_->addButton(option, field);
        layoutRow->addWidget(option);
    }
    connect(OpErstAend_, &QButtonGroup::idClicked, this,
            guardedSlot([this](int field) { model_.filter().setDateField(field); }));
    return FrmErstAend;
}

QCheckBox* DatePanel::newChAnwender()
{
    auto* box = newField<QCheckBox>("ChAnwender", QStringLiteral("nur &eigene Dokumente"));
    connect(box, &QCheckBox::clicked, this, guardedSlot([this](bool set) { model_.filter().setOwnOnly(set); }));
    return box;
}

QSlider* DatePanel::newSliderTage()
{
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(QStringLiteral("SliderTage"));
    slider->setAccessibleName(QStringLiteral("Zurückliegende Tage"));
    slider->setRange(1, QuickFilter::MAX_DAYS);
    slider->setPageStep(7);
    connect(slider, &QSlider::valueChanged, this, guardedSlot([this](int days) { model_.filter().setDays(days); }));
    return slider;
}

QWidget* DatePanel::newButton(const char* name, const QString& text, const std::function<void()>& act)
{
    auto* button = newField<QPushButton>(name, text);
    connect(button, &QPushButton::clicked, this, guardedSlot([act] {
                const BusyCursor wait;
                act();
            }));
    return button;
}

void DatePanel::refresh()
{
    const QuickFilter& filter = model_.filter();
    OpErstAend_->button(filter.OpErstAend())->setChecked(true);
    ChAnwender_->setChecked(filter.ChAnwender());
    const QSignalBlocker still(SliderTage_);
    SliderTage_->setValue(filter.SliderTage());
    dayCount_->setText(filter.SliderTage() == 1 ? QStringLiteral("1 Tag")
                                                : QStringLiteral("%1 Tage").arg(filter.SliderTage()));
    LblZeitRaum_->setText(toQt(filter.LblZeitRaum()));
}

} // namespace quelvarn
