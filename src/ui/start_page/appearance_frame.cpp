#include "ui/start_page/appearance_frame.h"

#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/guard.h"
#include "ui/theme/appearance.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

namespace quelvarn {

AppearanceFrame::AppearanceFrame(Appearance& appearance)
    : QGroupBox(QStringLiteral("Darstellung auf diesem Rechner")), appearance_(appearance)
{
    setObjectName(QStringLiteral("FrmDarstellung"));
    auto* colours = new QComboBox;
    colours->setObjectName(QStringLiteral("CbDarstellung"));
    colours->addItems({QStringLiteral("Automatisch"), QStringLiteral("Hell"), QStringLiteral("Dunkel")});
    colours->setCurrentIndex(static_cast<int>(appearance.mode()));
    auto* free = newField<QCheckBox>("ChFensterFrei", QStringLiteral("Fenstergröße frei"));
    free->setChecked(appearance.windowFree());
    auto* text = caption(QStringLiteral("&Farben"), TextRole::Caption);
    text->setBuddy(colours);

    auto* layoutRow = new QHBoxLayout(this);
    layoutRow->addWidget(text);
    layoutRow->addWidget(colours);
    layoutRow->addStretch(1);
    layoutRow->addWidget(free);

    const auto notify = [this] {
        if (changed)
            changed();
    };
    connect(colours, &QComboBox::activated, this, guardedSlot([this, notify](int index) {
                appearance_.setMode(static_cast<Mode>(index));
                notify();
            }));
    connect(free, &QCheckBox::clicked, this, guardedSlot([this, notify](bool on) {
                appearance_.setWindowFree(on);
                notify();
            }));
}

} // namespace quelvarn
