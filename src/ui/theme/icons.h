#pragma once

#include <QIcon>
#include <QPalette>

#include <string_view>

namespace quelvarn {

// A picture of the program's own set, by the name of its file. It takes its colour from the palette whenever it is
// drawn: that of the role, of a disabled text, or the accent of a pressed control.
QIcon symbol(std::string_view name, QPalette::ColorRole farbe = QPalette::ButtonText);
// The same in one colour, whatever the control's state.
QPixmap symbolbild(std::string_view name, int seite, const QColor& farbe, qreal dichte);
QIcon programmsymbol();

} // namespace quelvarn
