#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/panel_parts.h"
#include "ui/document_page/panels/panels.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolBar>

namespace quelvarn {

namespace {

constexpr Leistenknopf VERWALTEN{"Verwalten.....", "Verwalten.....", "", "manage"};
constexpr Leistenknopf ALLE_LOESCHEN{"Alle löschen", "Alle löschen", "", "delete"};
constexpr Leistenknopf ZEILE_LOESCHEN{"Zeile löschen", "Zeile löschen", "", "row-delete"};
constexpr Leistenknopf VERLASSEN{"Verlassen", "Verlassen", "", "back"};

QVBoxLayout* neuerAufbau(QWidget* panel)
{
    auto* aufbau = new QVBoxLayout(panel);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    return aufbau;
}

QHBoxLayout* neueReihe(QVBoxLayout& aufbau)
{
    auto* reihe = new QHBoxLayout;
    reihe->setContentsMargins(8, 4, 8, 4);
    aufbau.addLayout(reihe);
    return reihe;
}

} // namespace

QWidget* neuesFrmNutzer()
{
    auto* panel = neuesPanel("FrmNutzer");
    auto* aufbau = neuerAufbau(panel);
    auto* kopf = neueReihe(*aufbau);
    kopf->addWidget(
        beschriftung(QStringLiteral("In Solid Edge geöffnete Dateien."), Rolle::Kopf, QStringLiteral("LblKopfNutzer")),
        1);
    kopf->addWidget(ruhend<QCheckBox>("ChBenutzEigen", QStringLiteral("auch eigene")));
    kopf->addWidget(ruhend<QCheckBox>("ChBenutzInArbeit", QStringLiteral("In Arbeit")));
    kopf->addWidget(ruhend<QCheckBox>("ChBenutzInDurchsicht", QStringLiteral("In Durchsicht")));
    aufbau->addWidget(new Gitter("DGNutzer",
                                 {{"Dokumentname", "DokuBezNutzer"},
                                  {"Revision", "RevBezNutzer"},
                                  {"Dateiname", "DateinameNutzer"},
                                  {"Anwender", "AnwenderNutzer"},
                                  {"Rechner", "RechnerNutzer"},
                                  {"Seit", "DateTimeNutzer"}},
                                 {24, 10, 22, 14, 14, 16}));
    auto* fuss = neueReihe(*aufbau);
    fuss->addWidget(ruhend<QPushButton>("CmListBenutzer", QStringLiteral("Ende melden")));
    fuss->addWidget(beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblMyDocuOpenBy")), 1);
    aufbau->addWidget(ruhendeLeiste(
        "TbarNutzVerwalten",
        {{"Geöffnet", "Geöffnet", "", "edit"}, {"In Durchsicht", "In Durchsicht", "", "eye"}, VERWALTEN}));
    aufbau->addWidget(ruhendeLeiste("TbarNutzVerlassen", {ALLE_LOESCHEN, ZEILE_LOESCHEN, VERLASSEN}));
    return panel;
}

QWidget* neuesFrmForwardMessage()
{
    auto* panel = neuesPanel("FrmForwardMessage");
    auto* aufbau = neuerAufbau(panel);
    auto* kopf = neueReihe(*aufbau);
    kopf->addWidget(ruhend<QPushButton>("TggBtForward(0)", QStringLiteral("Workflow")));
    kopf->addWidget(ruhend<QPushButton>("TggBtForward(1)", QStringLiteral("Weiterleiten")));
    kopf->addWidget(beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblMsgForward")), 1);
    kopf->addWidget(ruhend<QCheckBox>("ChForwardAll", QStringLiteral("Alle Nachrichten")));
    aufbau->addWidget(new Gitter("DGForward",
                                 {{"Art", "ArtForward"},
                                  {"Dokumentname", "DokuBezForward"},
                                  {"Revision", "RevBezForward"},
                                  {"Absender", "SenderForward"},
                                  {"Datum/Uhrzeit", "DateTimeForward"}},
                                 {28, 24, 10, 18, 20}),
                      2);
    aufbau->addWidget(beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblInfoMessage")));
    auto* TxtMessageKomm = new QPlainTextEdit;
    TxtMessageKomm->setObjectName(QStringLiteral("TxtMessageKomm"));
    TxtMessageKomm->setReadOnly(true);
    aufbau->addWidget(TxtMessageKomm, 1);
    aufbau->addWidget(
        ruhendeLeiste("TbarForwardVerl", {VERWALTEN, VERLASSEN, {"Wechseln zu", "Wechseln zu", "", "switch"}}));
    aufbau->addWidget(ruhendeLeiste("TbarForwardVerw", {ALLE_LOESCHEN, ZEILE_LOESCHEN, VERLASSEN}));
    return panel;
}

QWidget* neuesFrmDelete()
{
    auto* panel = neuesPanel("FrmDelete");
    auto* reihe = new QHBoxLayout(panel);
    reihe->addWidget(ruhend<QPushButton>("LblDeleteRecordDB", QStringLiteral("Datensatz löschen")));
    reihe->addWidget(ruhend<QPushButton>("LblDeleteDateiAndDB", QStringLiteral("Datensatz und Datei löschen")));
    reihe->addStretch(1);
    return panel;
}

} // namespace quelvarn
