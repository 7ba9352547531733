#include "ui/controls/tool_bar.h"

#include "ui/text.h"
#include "ui/theme/icons.h"

#include <QAction>
#include <QToolBar>
#include <QToolButton>

#include <cassert>

namespace quelvarn {

namespace {

Qt::ToolButtonStyle style(ButtonKind kind)
{
    switch (kind) {
    case ButtonKind::IconOnly:
        return Qt::ToolButtonIconOnly;
    case ButtonKind::TextOnly:
        return Qt::ToolButtonTextOnly;
    case ButtonKind::TextBesideIcon:
        break;
    }
    return Qt::ToolButtonTextBesideIcon;
}

} // namespace

QToolBar* newBar(std::string_view name, ButtonKind kind, Qt::Orientation direction)
{
    auto* bar = new QToolBar;
    bar->setObjectName(toQt(name));
    bar->setOrientation(direction);
    bar->setMovable(false);
    bar->setToolButtonStyle(style(kind));
    bar->setIconSize({16, 16});
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    return bar;
}

QAction* addBarButton(QToolBar& bar, const BarButton& button)
{
    auto* action = bar.addAction(toQt(button.caption));
    action->setIconText(toQt(button.caption)); // Otherwise its dots are taken away.
    action->setObjectName(toQt(button.key));
    action->setToolTip(toQt(button.tooltip));
    action->setCheckable(button.toggle);
    if (!button.icon.empty())
        action->setIcon(icon(button.icon));
    if (auto* key = qobject_cast<QToolButton*>(bar.widgetForAction(action))) {
        key->setFocusPolicy(Qt::TabFocus);
        key->setAccessibleName(toQt(button.key));
        key->setAccessibleDescription(toQt(button.tooltip));
    }
    return action;
}

void addStretcher(QToolBar& bar)
{
    auto* stretcher = new QWidget;
    stretcher->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar.addWidget(stretcher);
}

QAction& buttonOf(const QToolBar& bar, std::string_view key)
{
    const auto actions = bar.actions();
    for (auto* action : actions)
        if (action->objectName() == toQt(key))
            return *action;
    assert(false && "no such button");
    return *actions.front();
}

} // namespace quelvarn
