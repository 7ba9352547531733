#pragma once

#include "ui/controls/fields.h"
#include "ui/controls/tool_bar.h"

#include <QString>

#include <initializer_list>

class QFrame;
class QToolBar;
class QWidget;

namespace quelvarn {

// A control of a panel whose work is not there yet: named, and disabled.
template <typename Button> Button* resting(QAnyStringView name, const QString& text)
{
    auto* button = newField<Button>(name, text);
    button->setEnabled(false);
    return button;
}

QToolBar* restingBar(std::string_view name, std::initializer_list<BarButton> buttons);
// A panel over or under the tables; hidden until it is asked for.
void setUpPanel(QFrame& panel, const char* name);
QWidget* newFramedPanel(const char* name);

} // namespace quelvarn
