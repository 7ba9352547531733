#include "ui/main_window/main_tool_bar.h"

#include "ui/controls/tool_bar.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/theme/icons.h"

#include <QMenu>
#include <QResizeEvent>
#include <QToolButton>

namespace quelvarn {

namespace {

constexpr std::array<std::string_view, TOOL_COUNT> ICONS{"edit", "insert",  "place",   "eye",
                                                         "down", "forward", "message", "quit"};

// In this order they do without their captions when there is no room.
constexpr std::array DISPENSABLE{Tool::Forward, Tool::Messages,       Tool::SmartViewer,
                                 Tool::Quit,    Tool::PlaceInDrawing, Tool::InsertInAssembly};
constexpr int INTERVAL = 2;
constexpr int MARGIN = 8;

std::size_t position(Tool tool)
{
    return static_cast<std::size_t>(tool);
}

} // namespace

ToolbarMidiFrm::ToolbarMidiFrm(MainWindow& model) : model_(model)
{
    setObjectName(QStringLiteral("ToolbarMidiFrm"));
    setMovable(false);
    setIconSize({16, 16});
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setContextMenuPolicy(Qt::PreventContextMenu);
    addStretcher(*this);
    for (int i = 0; i < TOOL_COUNT; ++i) {
        const auto tool = static_cast<Tool>(i);
        if (tool == Tool::Extras || tool == Tool::Quit)
            separator_[tool == Tool::Quit] = addSeparator();
        buildButton(tool);
    }
    buttons_[position(Tool::Quit)]->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void ToolbarMidiFrm::buildButton(Tool tool)
{
    const ToolButton& button = model_.button(tool);
    auto* action = addBarButton(*this, {button.caption, button.caption, button.tooltip, ICONS[position(tool)]});
    buttons_[position(tool)] = action;
    if (tool == Tool::Extras)
        return buildExtras(*action);
    connect(action, &QAction::triggered, this, guardedSlot([this, tool](bool) { model_.toolChosen(tool); }));
}

void ToolbarMidiFrm::buildExtras(QAction& button)
{
    auto* menu = new QMenu(this);
    forwardInExtras_ = menu->addAction(icon("forward"), QStringLiteral("Weiterleiten"));
    connect(forwardInExtras_, &QAction::triggered, this, guardedSlot([this] { model_.toolChosen(Tool::Forward); }));
    button.setMenu(menu);
    if (auto* key = qobject_cast<QToolButton*>(widgetForAction(&button))) {
        key->setPopupMode(QToolButton::InstantPopup);
        key->setLayoutDirection(Qt::RightToLeft); // The arrow stands behind the caption.
    }
}

void ToolbarMidiFrm::refresh()
{
    for (int i = 0; i < TOOL_COUNT; ++i) {
        const auto tool = static_cast<Tool>(i);
        const ToolButton& should = model_.button(tool);
        QAction& action = *buttons_[position(tool)];
        action.setToolTip(toQt(should.tooltip));
        action.setVisible(should.visible);
        action.setEnabled(tool == Tool::Extras || model_.hasAction(tool));
    }
    forwardInExtras_->setEnabled(model_.hasAction(Tool::Forward));
    separator_[0]->setVisible(model_.button(Tool::Extras).visible);
    adjust();
}

QSize ToolbarMidiFrm::minimumSizeHint() const
{
    return {0, QToolBar::minimumSizeHint().height()};
}

void ToolbarMidiFrm::resizeEvent(QResizeEvent* event)
{
    QToolBar::resizeEvent(event);
    adjust();
}

void ToolbarMidiFrm::adjust()
{
    int needed = 2 * MARGIN;
    for (const QAction* separator : separator_)
        needed += separator->isVisible() ? widgetForAction(const_cast<QAction*>(separator))->sizeHint().width() : 0;
    for (const Tool tool : DISPENSABLE)
        key(tool).setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const QAction* button : buttons_)
        if (button->isVisible())
            needed += widgetForAction(const_cast<QAction*>(button))->sizeHint().width() + INTERVAL;
    for (const Tool tool : DISPENSABLE) {
        if (needed <= width())
            return;
        QToolButton& button = key(tool);
        if (!buttons_[position(tool)]->isVisible())
            continue;
        needed -= button.sizeHint().width();
        button.setToolButtonStyle(Qt::ToolButtonIconOnly);
        needed += button.sizeHint().width();
    }
}

QToolButton& ToolbarMidiFrm::key(Tool tool)
{
    return *qobject_cast<QToolButton*>(widgetForAction(buttons_[position(tool)]));
}

} // namespace quelvarn
