#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/panel_parts.h"
#include "ui/document_page/panels/panels.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolBar>

#include <array>

namespace quelvarn {

namespace {

struct Reduktion
{
    std::string_view text;
    std::string_view tooltip;
};

constexpr std::array<Reduktion, 6> REDUKTIONEN{{
    {"Nur Status 2", "Nur Status 2. Restliche Stati werden gelöscht."},
    {"Nur Status 3", "Nur Status 3 u. 4. Restliche Stati werden gelöscht."},
    {"Nur höchste Revision.", "Nur höchste Revision. Niederere Revisionen werden glöscht."},
    {"Kein doppelter Dateiname.", "Nachfolgende Dokumente mit gleichem Dateinamen werden gelöscht."},
    {"Alle Farben schwarz drucken", "Farbe oder Schwarz/Weiß für aktuelle Zeile wählen."},
    {"TIFF-Datei verwenden", "Statt der Solid Edge-Datei wird die TIFF-Datei ausgegeben."},
}};

constexpr std::array<std::string_view, 9> ZEICHNUNGSAUFTRAEGE{
    "Offline Plotauftrag", "Offline PDF-Auftrag",         "Offline TIFF-Auftrag",
    "Offline Übersetzung", "Offline Plot-Versandauftrag", "E-Mail direkt versenden",
    "Versandauftrag",      "Plotauftrag bearbeiten",      "Verwalten..."};

constexpr std::array<std::string_view, 6> MODELLAUFTRAEGE{"Offline Auszüge",         "Offline Übersetzung",
                                                          "E-Mail direkt versenden", "Versandauftrag",
                                                          "Übersetzung bearbeiten",  "Verwalten..."};

// The entries of LblPlotTask or LblModellTask; the last two work on an order that is there already.
template <std::size_t N> QWidget* neueAuftragswahl(const QString& name, const std::array<std::string_view, N>& texte)
{
    auto* wahl = new QWidget;
    auto* aufbau = new QVBoxLayout(wahl);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(2);
    for (std::size_t i = 0; i < N; ++i) {
        if (i == 0)
            aufbau->addWidget(beschriftung(QStringLiteral("Auftrag anlegen/umwandeln:"), Rolle::Beschriftung));
        if (i == N - 2)
            aufbau->addWidget(beschriftung(QStringLiteral("Auftrag bearbeiten:"), Rolle::Beschriftung));
        aufbau->addWidget(ruhend<QPushButton>(QStringLiteral("%1(%2)").arg(name).arg(i), zuQt(texte[i])));
    }
    aufbau->addStretch(1);
    return wahl;
}

QGridLayout* neueReduktionen()
{
    auto* gitter = new QGridLayout;
    gitter->setVerticalSpacing(2);
    for (std::size_t i = 0; i < REDUKTIONEN.size(); ++i) {
        auto* kasten = ruhend<QCheckBox>(QStringLiteral("ChPlotSendTo(%1)").arg(i), zuQt(REDUKTIONEN[i].text));
        kasten->setToolTip(zuQt(REDUKTIONEN[i].tooltip));
        gitter->addWidget(kasten, static_cast<int>(i) / 2, static_cast<int>(i) % 2);
    }
    return gitter;
}

} // namespace

QWidget* neueAuftragsliste()
{
    auto* panel = neuesPanel("FrmListPlot");
    auto* kopf = new QHBoxLayout;
    kopf->addWidget(beschriftung(QStringLiteral("    Liste Plot-/PDF-/TIFF-/Übersetzungs- / Versandauftrag"),
                                 Rolle::Kopf, QStringLiteral("LblKopfListPlot")),
                    1);
    kopf->addWidget(beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblCount")));

    auto* liste = new QVBoxLayout;
    liste->addWidget(new Gitter("DataGridPlot",
                                {{"Dokumentname", "DokuBez"},
                                 {"Revision", "RevBez"},
                                 {"Dateiname", "Dateiname"},
                                 {"Status", "Status"},
                                 {"Plotter/Drucker", "Printer"},
                                 {"Papierformat", "PaperSize"},
                                 {"Farbe", "ColorMode"},
                                 {"Anzahl", "NumCopies"},
                                 {"Ausrichtung", "Orientation"},
                                 {"Skalierung", "Plotscale"}},
                                {17, 8, 15, 7, 15, 10, 8, 6, 8, 6}));
    liste->addWidget(ruhendeLeiste("TlbPlotauftrag", {{"Übernehmen", "Übernehmen", "", "tick"},
                                                      {"Zeile löschen", "Zeile löschen", "", "row-delete"},
                                                      {"Liste löschen", "Liste löschen", "", "delete"},
                                                      {"Verwalten.....", "Verwalten.....", "", "manage"}}));
    liste->addLayout(neueReduktionen());

    auto* gitter = new QGridLayout(panel);
    gitter->addLayout(kopf, 0, 0, 1, 3);
    gitter->addWidget(neueAuftragswahl(QStringLiteral("LblPlotTask"), ZEICHNUNGSAUFTRAEGE), 1, 0);
    gitter->addWidget(neueAuftragswahl(QStringLiteral("LblModellTask"), MODELLAUFTRAEGE), 1, 1);
    gitter->addLayout(liste, 1, 2);
    gitter->setColumnStretch(2, 1);
    return panel;
}

} // namespace quelvarn
