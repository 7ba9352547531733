#include "ui/adapters/held_back.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

namespace quelvarn {

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool isEscape(QEvent* event)
{
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    return key && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
}

QWidget* frontWindow()
{
    if (QWidget* active = QApplication::activeWindow())
        return active;
    const auto windows = QApplication::topLevelWidgets();
    const auto visible = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
        const bool lasting = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
        return lasting && window->isVisible();
    });
    return visible != windows.end() ? *visible : nullptr;
}

} // namespace quelvarn
