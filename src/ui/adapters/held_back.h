#pragma once

#include <QEvent>

class QWidget;

namespace quelvarn {

// What a person does with mouse, keyboard or a touch screen.
bool isInput(QEvent::Type type);
// The Esc key goes down.
bool isEscape(QEvent* event);
// The window that a panel or a box belongs over; null while there is none.
QWidget* frontWindow();

} // namespace quelvarn
