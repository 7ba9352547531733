#include "ui/document_page/panels/panel_parts.h"

#include <QAction>
#include <QFrame>
#include <QToolBar>

namespace quelvarn {

QToolBar* ruhendeLeiste(std::string_view name, std::initializer_list<Leistenknopf> knoepfe)
{
    auto* leiste = neueLeiste(name, Knopfart::TextNebenSymbol);
    for (const Leistenknopf& knopf : knoepfe)
        fuegeKnopfHinzu(*leiste, knopf)->setEnabled(false);
    return leiste;
}

void richtePanelEin(QFrame& panel, const char* name)
{
    panel.setObjectName(QLatin1String(name));
    panel.setProperty("rolle", QStringLiteral("panel"));
    panel.hide();
}

QWidget* neuesPanel(const char* name)
{
    auto* panel = new QFrame;
    richtePanelEin(*panel, name);
    return panel;
}

} // namespace quelvarn
