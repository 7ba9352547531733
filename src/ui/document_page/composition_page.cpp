#include "ui/document_page/composition_page.h"

#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/controls/tool_bar.h"
#include "ui/text.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QToolBar>

namespace quelvarn {

namespace {

constexpr std::array FELDER{"Status",    "Titel",   "Thema",    "Projekt",    "Material", "Firma",
                            "Kategorie", "Manager", "Geändert", "Bearbeiter", "Erstellt", "Autor"};

std::vector<Gitterspalte> fundstellen(std::string_view dokument, std::string_view revision, std::string_view datei,
                                      std::string_view pfad)
{
    return {{"Dokumentname", dokument}, {"Revision", revision}, {"Dateiname", datei}, {"Pfad- u. Dateiname", pfad}};
}

std::vector<Gitterspalte> bestandteile(std::string_view datei, std::string_view pfad)
{
    return {{"Dateiname", datei}, {"Pfad- u. Dateiname", pfad}};
}

} // namespace

const std::array<Verwendungsart, 6>& verwendungsarten()
{
    static constexpr std::string_view TABELLE_TEIL = "Wechseln zur Tabelle des markierten Teils.";
    static constexpr std::string_view TABELLE_MODELL = "Wechseln zur Tabelle des markierten Modells.";
    static const std::array<Verwendungsart, 6> arten{{
        {InfoSeite::InBaugruppe, "", "Enthalten in Baugruppe", "InfoAssembDG",
         fundstellen("AssembDokuBez", "AssembRevBez", "AssembDateiname", "Assembfilename"), "TlbPartInAssemb",
         "Anschauen Baugruppe", TABELLE_TEIL, "SVPEnthaltenIn", "LblInfoAssemb", 0},
        {InfoSeite::InZeichnung, "", "Enthalten in Zeichnung", "InfoDraftDG",
         fundstellen("DokuBezDraft", "RevBezDraft", "DateinameDraft", "filenameDraft"), "TlbModellInDraft",
         "Anschauen Zeichnung.", TABELLE_TEIL, "SVDEnthaltenIn", "LblInfoDraft", 1},
        {InfoSeite::BestehtAus, "FrmInfoBestehtAus", "Besteht aus", "DGAssembBestehtAus",
         bestandteile("DateinameAssembPart", "PfadAssembPart"), "TlbAssembMadeOf", "Anschauen Teil.", TABELLE_TEIL,
         "SVPartBestehtAus", "LblInfoBestehtAus", 2},
        {InfoSeite::Enthaelt, "FrmInfoEnthaelt", "Enthält", "DGDraftEnthaelt",
         bestandteile("DateinameAssembPart", "PfadAssembPart"), "TlbDrawingMadeOf", "Anschauen des Solid Edge-Modells",
         TABELLE_MODELL, "SVPartEnthaelt", "LblInfoEnthaelt", 3},
        {InfoSeite::InSchweissteil, "", "Enthalten in Schweißteil", "InfoAssembWeldDG",
         fundstellen("DokuBezWeld", "RevBezWeld", "DateinameWeld", "filenameWeld"), "TlbAssembInWeld",
         "Anschauen Baugruppe", TABELLE_TEIL, "SVPEnthaltenInWeld", "LblInfoAssembWeld", 4},
        {InfoSeite::EnthaeltBaugruppe, "", "Enthält Baugruppe", "DGWeldEnthaelt",
         bestandteile("DateinameAssemb", "PfadAssemb"), "TlbWeldMadeOf", "Anschauen des Solid Edge-Modells",
         TABELLE_MODELL, "SVWeldEnthaelt", "LblInfoWeldEnthaelt", 5},
    }};
    return arten;
}

Verwendungsansicht::Verwendungsansicht(const Verwendungsart& art)
{
    setObjectName(zuQt(art.rahmen));
    auto* titel = beschriftung(zuQt(art.titel), Rolle::Kopf);
    titel->setContentsMargins(12, 8, 12, 4);
    const bool breit = art.spalten.size() > 2;
    auto* gitter = new Gitter(art.gitter, art.spalten, breit ? std::vector{30, 18, 26, 26} : std::vector{40, 60});
    auto* vorschau = new QFrame;
    vorschau->setObjectName(zuQt(art.vorschau));
    vorschau->hide();

    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(titel);
    aufbau->addWidget(gitter, 3);
    aufbau->addWidget(neueLeiste(art));
    aufbau->addWidget(neueFelder(art), 2);
    aufbau->addWidget(vorschau, 2);
}

QWidget* Verwendungsansicht::neueLeiste(const Verwendungsart& art)
{
    auto* leiste = quelvarn::neueLeiste(art.leiste, Knopfart::NurText);
    fuegeKnopfHinzu(*leiste, {"Anschauen", "Anschauen", art.tippAnschauen, ""});
    fuegeKnopfHinzu(*leiste, {"Pfad in ZwSp", "   Pfad in ZwSp", "Pfad-/Dateiname in Zwischenspeicher.", ""});
    fuegeKnopfHinzu(*leiste, {"Zu Favoriten", "Zu Favoriten", "Zu Favoriten hinzufügen.", ""});
    fuegeKnopfHinzu(*leiste, {"Wechseln zu", "Wechseln zu", art.tippWechseln, ""});
    for (QAction* knopf : leiste->actions())
        knopf->setEnabled(false);
    auto* grafik = new QCheckBox(QStringLiteral("Graphik anzeigen"));
    grafik->setObjectName(QStringLiteral("ChViewGrafik(%1)").arg(art.grafik));
    grafik->setEnabled(false);

    auto* unten = new QWidget;
    auto* aufbau = new QVBoxLayout(unten);
    aufbau->setContentsMargins(4, 4, 4, 4);
    aufbau->setSpacing(2);
    aufbau->addWidget(leiste);
    aufbau->addWidget(grafik);
    return unten;
}

QWidget* Verwendungsansicht::neueFelder(const Verwendungsart& art)
{
    auto* felder = new QWidget;
    auto* gitter = new QGridLayout(felder);
    gitter->setContentsMargins(12, 4, 12, 8);
    gitter->setHorizontalSpacing(12);
    gitter->setVerticalSpacing(2);
    gitter->setColumnStretch(1, 1);
    int zeile = 0;
    for (const char* feld : FELDER) {
        gitter->addWidget(beschriftung(QString::fromUtf8(feld), Rolle::Beschriftung), zeile, 0);
        auto* wert = new QLabel;
        wert->setObjectName(QStringLiteral("%1(%2)").arg(zuQt(art.felder)).arg(zeile));
        gitter->addWidget(wert, zeile++, 1);
    }
    gitter->setRowStretch(zeile, 1);
    return felder;
}

} // namespace quelvarn
