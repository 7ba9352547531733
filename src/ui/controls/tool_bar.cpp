#include "ui/controls/tool_bar.h"

#include "ui/text.h"
#include "ui/theme/icons.h"

#include <QAction>
#include <QToolBar>
#include <QToolButton>

#include <cassert>

namespace quelvarn {

namespace {

Qt::ToolButtonStyle stil(Knopfart art)
{
    switch (art) {
    case Knopfart::NurSymbol:
        return Qt::ToolButtonIconOnly;
    case Knopfart::NurText:
        return Qt::ToolButtonTextOnly;
    case Knopfart::TextNebenSymbol:
        break;
    }
    return Qt::ToolButtonTextBesideIcon;
}

} // namespace

QToolBar* neueLeiste(std::string_view name, Knopfart art, Qt::Orientation richtung)
{
    auto* leiste = new QToolBar;
    leiste->setObjectName(zuQt(name));
    leiste->setOrientation(richtung);
    leiste->setMovable(false);
    leiste->setToolButtonStyle(stil(art));
    leiste->setIconSize({16, 16});
    leiste->setContextMenuPolicy(Qt::PreventContextMenu);
    return leiste;
}

QAction* fuegeKnopfHinzu(QToolBar& leiste, const Leistenknopf& knopf)
{
    auto* aktion = leiste.addAction(zuQt(knopf.beschriftung));
    aktion->setIconText(zuQt(knopf.beschriftung)); // Otherwise its dots are taken away.
    aktion->setObjectName(zuQt(knopf.schluessel));
    aktion->setToolTip(zuQt(knopf.tooltip));
    aktion->setCheckable(knopf.umschalter);
    if (!knopf.symbol.empty())
        aktion->setIcon(symbol(knopf.symbol));
    if (auto* taste = qobject_cast<QToolButton*>(leiste.widgetForAction(aktion))) {
        taste->setFocusPolicy(Qt::TabFocus);
        taste->setAccessibleName(zuQt(knopf.schluessel));
        taste->setAccessibleDescription(zuQt(knopf.tooltip));
    }
    return aktion;
}

void fuegeDehnerHinzu(QToolBar& leiste)
{
    auto* dehner = new QWidget;
    dehner->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    leiste.addWidget(dehner);
}

QAction& knopfVon(const QToolBar& leiste, std::string_view schluessel)
{
    const auto aktionen = leiste.actions();
    for (auto* aktion : aktionen)
        if (aktion->objectName() == zuQt(schluessel))
            return *aktion;
    assert(false && "no such button");
    return *aktionen.front();
}

} // namespace quelvarn
