#include "ui/document_page/file_page.h"

#include "register/info_panel.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/controls/wrapping_label.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

namespace quelvarn {

namespace {

struct Zeile
{
    const char* kopf;
    std::string DateiSeite::*feld;
};

// LblDat(0) is the first caption, LblDat(1) its value, and so on.
constexpr std::array<Zeile, 6> ZEILEN{{
    {"Name", &DateiSeite::Name},
    {"Ordner", &DateiSeite::Ordner},
    {"Größe", &DateiSeite::Groesse},
    {"Erstellt", &DateiSeite::Erstellt},
    {"Geändert", &DateiSeite::Geaendert},
    {"Letzter Zugriff", &DateiSeite::Zugriff},
}};

} // namespace

Dateiansicht::Dateiansicht(InfoPanel& modell)
    : modell_(modell),
      ChDatReadOnly_(neuerKasten("ChDatReadOnly", QStringLiteral("Schreibgeschützt"), &InfoPanel::setReadOnly)),
      ChDatArchiv_(neuerKasten("ChDatArchiv", QStringLiteral("Archiv"), &InfoPanel::setArchive))
{
    auto* gitter = new QGridLayout(this);
    gitter->setContentsMargins(12, 8, 12, 8);
    gitter->setHorizontalSpacing(12);
    gitter->setVerticalSpacing(3);
    gitter->setColumnStretch(1, 1);
    gitter->addWidget(beschriftung(QStringLiteral("Dateieigenschaften"), Rolle::Kopf), 0, 0, 1, 2);
    gitter->setRowMinimumHeight(1, 5);
    int reihe = 2;
    for (std::size_t i = 0; i < ZEILEN.size(); ++i, ++reihe) {
        auto* kopf = beschriftung(QString::fromUtf8(ZEILEN[i].kopf), Rolle::Beschriftung,
                                  QStringLiteral("LblDat(%1)").arg(2 * i));
        werte_[i] = new Umbruchlabel;
        werte_[i]->setObjectName(QStringLiteral("LblDat(%1)").arg(2 * i + 1));
        gitter->addWidget(kopf, reihe, 0, Qt::AlignTop);
        gitter->addWidget(werte_[i], reihe, 1);
    }
    gitter->setRowMinimumHeight(reihe, 13);
    gitter->addWidget(trennlinie(), reihe++, 0, 1, 2, Qt::AlignVCenter);
    gitter->addWidget(beschriftung(QStringLiteral("Attribute"), Rolle::Beschriftung), reihe, 0);
    gitter->addWidget(ChDatReadOnly_, reihe++, 1);
    gitter->addWidget(ChDatArchiv_, reihe++, 1);
    gitter->setRowStretch(reihe, 1);
}

QCheckBox* Dateiansicht::neuerKasten(const char* name, const QString& text, void (InfoPanel::*setze)(bool))
{
    auto* kasten = neuesFeld<QCheckBox>(name, text);
    connect(kasten, &QCheckBox::clicked, this, bewacht([&modell = modell_, setze](bool an) { (modell.*setze)(an); }));
    return kasten;
}

void Dateiansicht::zeigen()
{
    const DateiSeite& seite = modell_.file();
    for (std::size_t i = 0; i < ZEILEN.size(); ++i)
        werte_[i]->setText(zuQt(seite.*ZEILEN[i].feld));
    for (const auto& [kasten, an] :
         {std::pair(ChDatReadOnly_, seite.schreibgeschuetzt), {ChDatArchiv_, seite.archiv}}) {
        kasten->setEnabled(seite.vorhanden);
        zeigeGesetzt(*kasten, an);
    }
}

} // namespace quelvarn
