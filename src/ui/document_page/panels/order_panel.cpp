#include "ui/document_page/panels/order_panel.h"

#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/panel_parts.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolBar>

#include <array>

namespace quelvarn {

namespace {

struct Reduction
{
    std::string_view text;
    std::string_view tooltip;
};

constexpr std::array<Reduction, 6> REDUCTIONS{{
    {"Nur Status 2", "Nur Status 2. Restliche Stati werden gelöscht."},
    {"Nur Status 3", "Nur Status 3 u. 4. Restliche Stati werden gelöscht."},
    {"Nur höchste Revision.", "Nur höchste Revision. Niederere Revisionen werden glöscht."},
    {"Kein doppelter Dateiname.", "Nachfolgende Dokumente mit gleichem Dateinamen werden gelöscht."},
    {"Alle Farben schwarz drucken", "Farbe oder Schwarz/Weiß für aktuelle Zeile wählen."},
    {"TIFF-Datei verwenden", "Statt der Solid Edge-Datei wird die TIFF-Datei ausgegeben."},
}};

constexpr std::array<std::string_view, 9> DRAWING_ORDERS{
    "Offline Plotauftrag", "Offline PDF-Auftrag",         "Offline TIFF-Auftrag",
    "Offline Übersetzung", "Offline Plot-Versandauftrag", "E-Mail direkt versenden",
    "Versandauftrag",      "Plotauftrag bearbeiten",      "Verwalten..."};

constexpr std::array<std::string_view, 6> MODEL_ORDERS{"Offline Auszüge",         "Offline Übersetzung",
                                                       "E-Mail direkt versenden", "Versandauftrag",
                                                       "Übersetzung bearbeiten",  "Verwalten..."};

// The entries of LblPlotTask or LblModellTask; the last two work on an order that is there already.
template <std::size_t N> QWidget* newOrderChoice(const QString& name, const std::array<std::string_view, N>& texts)
{
    auto* choice = new QWidget;
    auto* layout = new QVBoxLayout(choice);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    for (std::size_t i = 0; i < N; ++i) {
        if (i == 0)
            layout->addWidget(caption(QStringLiteral("Auftrag anlegen/umwandeln:"), TextRole::Caption));
        if (i == N - 2)
            layout->addWidget(caption(QStringLiteral("Auftrag bearbeiten:"), TextRole::Caption));
        layout->addWidget(resting<QPushButton>(QStringLiteral("%1(%2)").arg(name).arg(i), toQt(texts[i])));
    }
    layout->addStretch(1);
    return choice;
}

QGridLayout* newReductions()
{
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    for (std::size_t i = 0; i < REDUCTIONS.size(); ++i) {
        auto* box = resting<QCheckBox>(QStringLiteral("ChPlotSendTo(%1)").arg(i), toQt(REDUCTIONS[i].text));
        box->setToolTip(toQt(REDUCTIONS[i].tooltip));
        grid->addWidget(box, static_cast<int>(i) / 2, static_cast<int>(i) % 2);
    }
    return grid;
}

} // namespace

QWidget* newOrderList()
{
    auto* panel = newFramedPanel("FrmListPlot");
    auto* heading = new QHBoxLayout;
    heading->addWidget(caption(QStringLiteral("    Liste Plot-/PDF-/TIFF-/Übersetzungs- / Versandauftrag"),
                               TextRole::Heading, QStringLiteral("LblKopfListPlot")),
                       1);
    heading->addWidget(caption({}, TextRole::Caption, QStringLiteral("LblCount")));

    auto* list = new QVBoxLayout;
    list->addWidget(new Grid("DataGridPlot",
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
    list->addWidget(restingBar("TlbPlotauftrag", {{"Übernehmen", "Übernehmen", "", "tick"},
                                                  {"Zeile löschen", "Zeile löschen", "", "row-delete"},
                                                  {"Liste löschen", "Liste löschen", "", "delete"},
                                                  {"Verwalten.....", "Verwalten.....", "", "manage"}}));
    list->addLayout(newReductions());

    auto* grid = new QGridLayout(panel);
    grid->addLayout(heading, 0, 0, 1, 3);
    grid->addWidget(newOrderChoice(QStringLiteral("LblPlotTask"), DRAWING_ORDERS), 1, 0);
    grid->addWidget(newOrderChoice(QStringLiteral("LblModellTask"), MODEL_ORDERS), 1, 1);
    grid->addLayout(list, 1, 2);
    grid->setColumnStretch(2, 1);
    return panel;
}

} // namespace quelvarn
