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

QWidget* neuesPanel(const char* name)
{
    auto* panel = new QFrame;
    panel->setObjectName(QLatin1String(name));
    panel->setProperty("rolle", QStringLiteral("panel"));
    panel->hide();
    return panel;
}

} // namespace quelvarn
