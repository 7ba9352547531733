#pragma once

#include <QString>

#include <string_view>

class QAction;
class QToolBar;

namespace quelvarn {

// A button of a tool bar. Its key is the name of its action.
struct BarButton
{
    std::string_view key;
    std::string_view caption;
    std::string_view tooltip;
    std::string_view icon;
    bool toggle = false;
};

enum class ButtonKind { IconOnly, TextOnly, TextBesideIcon };

QToolBar* newBar(std::string_view name, ButtonKind kind, Qt::Orientation direction = Qt::Horizontal);
QAction* addBarButton(QToolBar& bar, const BarButton& button);
// What follows stands at the far end.
void addStretcher(QToolBar& bar);
// By key; the button must be there.
QAction& buttonOf(const QToolBar& bar, std::string_view key);

} // namespace quelvarn
