#include "ui/document_page/panels/list_panels.h"

#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/panel_parts.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolBar>

namespace quelvarn {

namespace {

constexpr BarButton MANAGE{"Verwalten.....", "Verwalten.....", "", "manage"};
constexpr BarButton DELETE_ALL{"Alle löschen", "Alle löschen", "", "delete"};
constexpr BarButton DELETE_ROW{"Zeile löschen", "Zeile löschen", "", "row-delete"};
constexpr BarButton LEAVE{"Verlassen", "Verlassen", "", "back"};

QVBoxLayout* newLayout(QWidget* panel)
{
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    return layout;
}

QHBoxLayout* newStripRow(QVBoxLayout& layout)
{
    auto* layoutRow = new QHBoxLayout;
    layoutRow->setContentsMargins(8, 4, 8, 4);
    layout.addLayout(layoutRow);
    return layoutRow;
}

} // namespace

QWidget* newFrmNutzer()
{
    auto* panel = newFramedPanel("FrmNutzer");
    auto* layout = newLayout(panel);
    auto* heading = newStripRow(*layout);
    heading->addWidget(
        caption(QStringLiteral("In Solid Edge geöffnete Dateien."), TextRole::Heading, QStringLiteral("LblKopfNutzer")),
        1);
    heading->addWidget(resting<QCheckBox>("ChBenutzEigen", QStringLiteral("auch eigene")));
    heading->addWidget(resting<QCheckBox>("ChBenutzInArbeit", QStringLiteral("In Arbeit")));
    heading->addWidget(resting<QCheckBox>("ChBenutzInDurchsicht", QStringLiteral("In Durchsicht")));
    layout->addWidget(new Grid("DGNutzer",
                               {{"Dokumentname", "DokuBezNutzer"},
                                {"Revision", "RevBezNutzer"},
                                {"Dateiname", "DateinameNutzer"},
                                {"Anwender", "AnwenderNutzer"},
                                {"Rechner", "RechnerNutzer"},
                                {"Seit", "DateTimeNutzer"}},
                               {24, 10, 22, 14, 14, 16}));
    auto* fuss = newStripRow(*layout);
    fuss->addWidget(resting<QPushButton>("CmListBenutzer", QStringLiteral("Ende melden")));
    fuss->addWidget(caption({}, TextRole::Caption, QStringLiteral("LblMyDocuOpenBy")), 1);
    layout->addWidget(
        restingBar("TbarNutzVerwalten",
                   {{"Geöffnet", "Geöffnet", "", "edit"}, {"In Durchsicht", "In Durchsicht", "", "eye"}, MANAGE}));
    layout->addWidget(restingBar("TbarNutzVerlassen", {DELETE_ALL, DELETE_ROW, LEAVE}));
    return panel;
}

QWidget* newFrmForwardMessage()
{
    auto* panel = newFramedPanel("FrmForwardMessage");
    auto* layout = newLayout(panel);
    auto* heading = newStripRow(*layout);
    heading->addWidget(resting<QPushButton>("TggBtForward(0)", QStringLiteral("Workflow")));
    heading->addWidget(resting<QPushButton>("TggBtForward(1)", QStringLiteral("Weiterleiten")));
    heading->addWidget(caption({}, TextRole::Caption, QStringLiteral("LblMsgForward")), 1);
    heading->addWidget(resting<QCheckBox>("ChForwardAll", QStringLiteral("Alle Nachrichten")));
    layout->addWidget(new Grid("DGForward",
                               {{"Art", "ArtForward"},
                                {"Dokumentname", "DokuBezForward"},
                                {"Revision", "RevBezForward"},
                                {"Absender", "SenderForward"},
                                {"Datum/Uhrzeit", "DateTimeForward"}},
                               {28, 24, 10, 18, 20}),
                      2);
    layout->addWidget(caption({}, TextRole::Caption, QStringLiteral("LblInfoMessage")));
    auto* TxtMessageKomm = new QPlainTextEdit;
    TxtMessageKomm->setObjectName(QStringLiteral("TxtMessageKomm"));
    TxtMessageKomm->setReadOnly(true);
    layout->addWidget(TxtMessageKomm, 1);
    layout->addWidget(restingBar("TbarForwardVerl", {MANAGE, LEAVE, {"Wechseln zu", "Wechseln zu", "", "switch"}}));
    layout->addWidget(restingBar("TbarForwardVerw", {DELETE_ALL, DELETE_ROW, LEAVE}));
    return panel;
}

QWidget* newFrmDelete()
{
    auto* panel = newFramedPanel("FrmDelete");
    auto* layoutRow = new QHBoxLayout(panel);
    layoutRow->addWidget(resting<QPushButton>("LblDeleteRecordDB", QStringLiteral("Datensatz löschen")));
    layoutRow->addWidget(resting<QPushButton>("LblDeleteDateiAndDB", QStringLiteral("Datensatz und Datei löschen")));
    layoutRow->addStretch(1);
    return panel;
}

} // namespace quelvarn
