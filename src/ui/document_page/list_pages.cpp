#include "ui/document_page/list_pages.h"

#include "ui/controls/elided_label.h"
#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/panel_parts.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

namespace quelvarn {

namespace {

QVBoxLayout* neueSeite(const QString& titel, Gitter* gitter)
{
    auto* seite = new QWidget;
    auto* aufbau = new QVBoxLayout(seite);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    auto* kopf = beschriftung(titel, Rolle::Kopf);
    kopf->setContentsMargins(12, 8, 12, 4);
    aufbau->addWidget(kopf);
    aufbau->addWidget(gitter, 1);
    return aufbau;
}

QHBoxLayout* neueReihe(QVBoxLayout& aufbau)
{
    auto* reihe = new QHBoxLayout;
    reihe->setContentsMargins(12, 8, 12, 8);
    aufbau.addLayout(reihe);
    return reihe;
}

} // namespace

QWidget* neueRevisionsseite()
{
    auto* aufbau = neueSeite(
        QStringLiteral("Revision"),
        new Gitter("DataGridRevision",
                   {{"Revision", "RevBez"}, {"Datum", "Geaendert"}, {"Name", "Bearbeiter"}, {"Änderung", "Aenderung"}},
                   {18, 20, 24, 38}));
    auto* reihe = neueReihe(*aufbau);
    reihe->addWidget(ruhend<QRadioButton>("OpRevErstBearb(0)", QStringLiteral("Erstellt")));
    reihe->addWidget(ruhend<QRadioButton>("OpRevErstBearb(1)", QStringLiteral("Bearbeitet")));
    reihe->addStretch(1);
    return aufbau->parentWidget();
}

QWidget* neueBenutzDefSeite()
{
    return neueSeite(QStringLiteral("Benutzerdef. Eigenschaften"),
                     new Gitter("DataGridBenutzDef", {{"Name", "Name"}, {"Wert", "Wert"}}, {40, 60}))
        ->parentWidget();
}

QWidget* neueHauptmerkmalseite()
{
    auto* aufbau = neueSeite(QStringLiteral("Hauptmerkmale / -werte"),
                             new Gitter("DataGridMerkWert",
                                        {{"Bezeichn.", "Bezeichn"}, {"Inhalt", "Inhalt"}, {"Benennung", "Benennung"}},
                                        {22, 42, 36}));
    auto* vorlage = new KurzLabel(nullptr, Qt::ElideMiddle);
    vorlage->setObjectName(QStringLiteral("LblPfadDateiVorlage"));
    auto* reihe = neueReihe(*aufbau);
    reihe->addWidget(beschriftung(QStringLiteral("Vorlage"), Rolle::Beschriftung));
    reihe->addWidget(vorlage, 1);
    reihe->addWidget(ruhend<QPushButton>("CmViewVorlage", QStringLiteral("Anschauen")));
    return aufbau->parentWidget();
}

QWidget* neueZusDokuSeite()
{
    auto* aufbau =
        neueSeite(QStringLiteral("Zusätzl. Dokumente"), new Gitter("DataGridZusDoku",
                                                                   {{"Datum/Uhrzeit", "ZusDokuDatum"},
                                                                    {"Objekt ", "ZusDokuDateiname"},
                                                                    {"Senden", "ZusDokuSenden"},
                                                                    {"Pfad- u. Dateiname", "ZusDokufilename"}},
                                                                   {30, 28, 17, 25}));
    aufbau->addWidget(beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblInfoZusDoku")));
    auto* reihe = neueReihe(*aufbau);
    reihe->addWidget(ruhend<QCheckBox>("ChViewGrafikZusDoku", QStringLiteral("Graphik anzeigen")), 1);
    reihe->addWidget(ruhend<QPushButton>("CmStartZusDoku", QStringLiteral("Anschauen")));
    return aufbau->parentWidget();
}

QWidget* neueSendToSeite()
{
    auto* aufbau =
        neueSeite(QStringLiteral("Versendet an"), new Gitter("DataGridSendTo",
                                                             {{"Datum/Uhrzeit", "SendToDatum"},
                                                              {"Versendet an", "Kennung"},
                                                              {"Auftrag / Protokoll", "OrderDateiname"},
                                                              {"Pfad- u. Dateiname Speicherort", "Orderfilename"}},
                                                             {26, 24, 26, 24}));
    auto* reihe = neueReihe(*aufbau);
    reihe->addStretch(1);
    reihe->addWidget(ruhend<QPushButton>("CmSendTo", QStringLiteral("Öffnen")));
    return aufbau->parentWidget();
}

} // namespace quelvarn
