#include "ui/document_page/panels/panel_parts.h"

#include <QAction>
#include <QFrame>
#include <QToolBar>

namespace quelvarn {

QToolBar* restingBar(std::string_view name, std::initializer_list<BarButton> buttons)
{
    auto* bar = newBar(name, ButtonKind::TextBesideIcon);
    for (const BarButton& button : buttons)
        addBarButton(*bar, button)->setEnabled(false);
    return bar;
}

void setUpPanel(QFrame& panel, const char* name)
{
    panel.setObjectName(QLatin1String(name));
    panel.setProperty("role", QStringLiteral("panel"));
    panel.hide();
}

QWidget* newFramedPanel(const char* name)
{
    auto* panel = new QFrame;
    setUpPanel(*panel, name);
    return panel;
}

} // namespace quelvarn
