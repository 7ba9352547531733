#include "ui/start_page/settings_view.h"

#include "frame/start_page.h"
#include "session/tree_switches.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quelvarn {

// A frame with switches of the property tree, which stand in BAUMSCHALTER from `erster` on.
struct Schaltergruppe
{
    const char* rahmen;
    const char* titel;
    const char* feld;
    int erster;
    int anzahl;
    int spalten;
    void (StartPage::*setze)(int, bool);
};

namespace {

constexpr std::array<Schaltergruppe, 2> SCHALTERGRUPPEN{{
    {"Frame1", "Informationseinstellungen der TREEVIEW", "ChInfoPrio1", 0, ANZAHL_INFOPRIO1, 1,
     &StartPage::setzeInfoPrio1},
    {"Frame2", "Informationen in der TREEVIEW anzeigen (sofern vorhanden)", "ChInfoPrio2", ANZAHL_INFOPRIO1,
     static_cast<int>(BAUMSCHALTER.size()) - ANZAHL_INFOPRIO1, 2, &StartPage::setzeInfoPrio2},
}};

} // namespace

Einstellungen::Einstellungen(StartPage& modell, QWidget* darstellung)
    : modell_(modell), version_(new KurzLabel), pfad_(new KurzLabel(nullptr, Qt::ElideMiddle)),
      FrmActiveSE_(neuesActiveSE())
{
    auto* unten = new QHBoxLayout;
    unten->addWidget(neuesOfflinePlot(), 1);
    unten->addWidget(neuesOfflineOrder(), 1);

    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(6);
    aufbau->addWidget(neuesSolidEdge());
    aufbau->addWidget(FrmActiveSE_);
    aufbau->addWidget(neueSchalter(SCHALTERGRUPPEN[0], ChInfoPrio1_));
    aufbau->addWidget(neueSchalter(SCHALTERGRUPPEN[1], ChInfoPrio2_));
    aufbau->addLayout(unten);
    aufbau->addWidget(darstellung);
    aufbau->addStretch(1);
}

QWidget* Einstellungen::neuesSolidEdge()
{
    auto* teil = new QWidget;
    auto* aufbau = new QVBoxLayout(teil);
    aufbau->setContentsMargins(2, 0, 2, 2);
    aufbau->setSpacing(2);
    version_->setObjectName(QStringLiteral("LblSolidEdgeVersion"));
    setzeRolle(*version_, Rolle::Kopf);
    pfad_->setObjectName(QStringLiteral("LblSolidEdgePfad"));
    setzeRolle(*pfad_, Rolle::Beschriftung);
    aufbau->addWidget(version_);
    aufbau->addWidget(pfad_);
    return teil;
}

QGroupBox* Einstellungen::neuesActiveSE()
{
    auto* rahmen = neuesFeld<QGroupBox>("FrmActiveSE", QStringLiteral("Einfügen Baugr./Plazieren Zchn. ist aktiv?"));
    TggBtActiveSE_ = neuesFeld<QPushButton>("TggBtActiveSE", QStringLiteral("Ereignis"));
    TggBtActiveSE_->setCheckable(true);
    LblActiveSE_ = beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblActiveSE"));
    auto* reihe = new QHBoxLayout(rahmen);
    reihe->addWidget(TggBtActiveSE_);
    reihe->addWidget(LblActiveSE_, 1);
    connect(TggBtActiveSE_, &QPushButton::clicked, this, bewacht([this](bool an) { modell_.setzeActiveSE(an); }));
    return rahmen;
}

QGroupBox* Einstellungen::neueSchalter(const Schaltergruppe& gruppe, std::vector<QCheckBox*>& kaesten)
{
    auto* rahmen = neuesFeld<QGroupBox>(gruppe.rahmen, QLatin1String(gruppe.titel));
    auto* aufbau = new QGridLayout(rahmen);
    aufbau->setVerticalSpacing(4);
    const int reihen = (gruppe.anzahl + gruppe.spalten - 1) / gruppe.spalten;
    for (int i = 0; i < gruppe.anzahl; ++i) {
        const int zeile = gruppe.erster + i;
        auto* kasten = neuesFeld<QCheckBox>(QStringLiteral("%1(%2)").arg(QLatin1String(gruppe.feld)).arg(i),
                                            zuQt(BAUMSCHALTER[static_cast<std::size_t>(zeile)].beschriftung));
        connect(kasten, &QCheckBox::clicked, this,
                bewacht([&modell = modell_, i, setze = gruppe.setze](bool an) { (modell.*setze)(i, an); }));
        kaesten.push_back(kasten);
        aufbau->addWidget(kasten, i % reihen, i / reihen);
    }
    return rahmen;
}

QGroupBox* Einstellungen::neuesOfflinePlot()
{
    auto* rahmen = neuesFeld<QGroupBox>("FrmOfflinePlot", QStringLiteral("Offline-Plotten"));
    auto* aufbau = new QHBoxLayout;
    for (std::size_t i = 0; i < OFFLINE_TOOLS.size(); ++i) {
        auto* option = neuesFeld<QRadioButton>(QStringLiteral("OpOfflinePlot(%1)").arg(i),
                                               QStringLiteral("mit ") + zuQt(OFFLINE_TOOLS[i]));
        const int index = static_cast<int>(i);
        connect(option, &QRadioButton::clicked, this,
                bewacht([this, index](bool) { modell_.offlineToolGewaehlt(index); }));
        OpOfflinePlot_.push_back(option);
        aufbau->addWidget(option);
    }
    rahmen->setLayout(aufbau);
    return rahmen;
}

QGroupBox* Einstellungen::neuesOfflineOrder()
{
    auto* rahmen = neuesFeld<QGroupBox>("FrmOfflineOrder", QStringLiteral("Offline/Versenden"));
    ChLocalOrder_ = neuesFeld<QCheckBox>("ChLocalOrder", QStringLiteral("Aufträge lokal speichern"));
    connect(ChLocalOrder_, &QCheckBox::clicked, this, bewacht([this](bool an) { modell_.setzeLokaleAuftraege(an); }));
    auto* aufbau = new QVBoxLayout(rahmen);
    aufbau->addWidget(ChLocalOrder_);
    return rahmen;
}

void Einstellungen::zeigen()
{
    version_->setText(zuQt(modell_.LblSolidEdgeVersion()));
    pfad_->setText(zuQt(modell_.LblSolidEdgePfad()));
    FrmActiveSE_->setVisible(modell_.activeSESichtbar());
    FrmActiveSE_->setEnabled(modell_.activeSEBereit());
    zeigeGesetzt(*TggBtActiveSE_, modell_.activeSE());
    LblActiveSE_->setText(zuQt(modell_.LblActiveSE()));
    for (std::size_t i = 0; i < ChInfoPrio1_.size(); ++i)
        zeigeGesetzt(*ChInfoPrio1_[i], modell_.infoPrio1(static_cast<int>(i)));
    for (std::size_t i = 0; i < ChInfoPrio2_.size(); ++i)
        zeigeGesetzt(*ChInfoPrio2_[i], modell_.infoPrio2(static_cast<int>(i)));
    for (std::size_t i = 0; i < OpOfflinePlot_.size(); ++i)
        zeigeGesetzt(*OpOfflinePlot_[i], modell_.offlineTool() == static_cast<int>(i));
    zeigeGesetzt(*ChLocalOrder_, modell_.lokaleAuftraege());
}

} // namespace quelvarn
