#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/panel_parts.h"
#include "ui/document_page/panels/panels.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

namespace quelvarn {

namespace {

QHBoxLayout* optionen(std::initializer_list<std::pair<const char*, const char*>> namen)
{
    auto* reihe = new QHBoxLayout;
    for (const auto& [name, text] : namen)
        reihe->addWidget(ruhend<QRadioButton>(name, QString::fromUtf8(text)));
    reihe->addStretch(1);
    return reihe;
}

} // namespace

QWidget* neuesFrmSuchenFiltern()
{
    auto* panel = neuesPanel("FrmSuchenFiltern");
    auto* CombSuchStr = new QComboBox;
    CombSuchStr->setObjectName(QStringLiteral("CombSuchStr"));
    CombSuchStr->setEditable(true);
    CombSuchStr->setEnabled(false);
    CombSuchStr->setAccessibleName(QStringLiteral("Suchtext"));
    auto* TextDocuBez = ruhend<QLineEdit>("TextDocuBez", {});
    TextDocuBez->setAccessibleName(QStringLiteral("Suchen beim Tippen"));
    auto* gitter = new QGridLayout(panel);
    gitter->addWidget(CombSuchStr, 0, 0);
    gitter->addWidget(TextDocuBez, 0, 1);
    gitter->addWidget(ruhend<QPushButton>("CmBeginnSuchen", QStringLiteral("Suchen")), 0, 2);
    gitter->addWidget(ruhend<QPushButton>("CmWeiterSuchen", QStringLiteral("Weitersuchen")), 0, 3);
    gitter->addWidget(ruhend<QCheckBox>("ChDynSuchen", QStringLiteral("Beim Tippen suchen")), 1, 0);
    gitter->addLayout(optionen({{"OptSuchPos(0)", "am Anfang"}, {"OptSuchPos(1)", "beliebig"}}), 1, 1);
    gitter->addWidget(ruhend<QPushButton>("CmDokuDateiFiltern", QStringLiteral("Filtern")), 1, 2);
    gitter->addWidget(beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblFilterStep1")), 1, 3);
    gitter->addLayout(
        optionen({{"OpDokuBez", "Dokumentname"}, {"OpDatei", "Dateiname"}, {"OpPfadDatei", "Pfad-u. Dateiname"}}), 2, 0,
        1, 4);
    return panel;
}

QWidget* neuesFrmFilternDatum()
{
    auto* panel = neuesPanel("FrmFilternDatum");
    auto* SliderTage = new QSlider(Qt::Horizontal);
    SliderTage->setObjectName(QStringLiteral("SliderTage"));
    SliderTage->setAccessibleName(QStringLiteral("Zurückliegende Tage"));
    SliderTage->setEnabled(false);
    auto* FrmErstAend = new QGroupBox(QStringLiteral("Datum"));
    FrmErstAend->setObjectName(QStringLiteral("FrmErstAend"));
    FrmErstAend->setLayout(optionen({{"OpErstAend(0)", "Erstellt"}, {"OpErstAend(1)", "Geändert"}}));
    auto* gitter = new QGridLayout(panel);
    gitter->addWidget(FrmErstAend, 0, 0, 2, 1);
    gitter->addWidget(ruhend<QPushButton>("CmHeute", QStringLiteral("Heute")), 0, 1);
    gitter->addWidget(ruhend<QCheckBox>("ChAnwender", QStringLiteral("nur eigene Dokumente")), 0, 2);
    gitter->addWidget(ruhend<QPushButton>("CmNeu", QStringLiteral("Zurückliegende Tage")), 1, 1);
    gitter->addWidget(SliderTage, 1, 2);
    gitter->addWidget(beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblZeitRaum")), 1, 3);
    gitter->setColumnStretch(3, 1);
    return panel;
}

QWidget* neuesFrmInfoFilter()
{
    auto* panel = neuesPanel("FrmInfoFilter");
    auto* aufbau = new QVBoxLayout(panel);
    aufbau->setContentsMargins({});
    aufbau->addWidget(
        new Gitter("DataGridFilterEigenMerk", {{"Benennung", "Benennung"}, {"Filterwerte", "Wert"}}, {40, 60}));
    return panel;
}

} // namespace quelvarn
