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

Darstellungsrahmen::Darstellungsrahmen(Darstellung& darstellung)
    : QGroupBox(QStringLiteral("Darstellung auf diesem Rechner")), darstellung_(darstellung)
{
    setObjectName(QStringLiteral("FrmDarstellung"));
    auto* farben = new QComboBox;
    farben->setObjectName(QStringLiteral("CbDarstellung"));
    farben->addItems({QStringLiteral("Automatisch"), QStringLiteral("Hell"), QStringLiteral("Dunkel")});
    farben->setCurrentIndex(static_cast<int>(darstellung.modus()));
    auto* frei = neuesFeld<QCheckBox>("ChFensterFrei", QStringLiteral("Fenstergröße frei"));
    frei->setChecked(darstellung.fensterFrei());
    auto* text = beschriftung(QStringLiteral("&Farben"), Rolle::Beschriftung);
    text->setBuddy(farben);

    auto* reihe = new QHBoxLayout(this);
    reihe->addWidget(text);
    reihe->addWidget(farben);
    reihe->addStretch(1);
    reihe->addWidget(frei);

    const auto melde = [this] {
        if (geaendert)
            geaendert();
    };
    connect(farben, &QComboBox::activated, this, bewacht([this, melde](int index) {
                darstellung_.setzeModus(static_cast<Modus>(index));
                melde();
            }));
    connect(frei, &QCheckBox::clicked, this, bewacht([this, melde](bool an) {
                darstellung_.setzeFensterFrei(an);
                melde();
            }));
}

} // namespace quelvarn
