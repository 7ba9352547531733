#pragma once

#include <QIcon>
#include <QPalette>

#include <string_view>

namespace quelvarn {

// A picture of the program's own set, by the name of its file. It takes its colour from the palette whenever it is
// drawn: that of the role, of a disabled text, or the accent of a pressed control.
QIcon icon(std::string_view name, QPalette::ColorRole colour = QPalette::ButtonText);
// The same in one colour, whatever the control's state.
QPixmap iconPicture(std::string_view name, int page, const QColor& colour, qreal density);
QIcon programIcon();

} // namespace quelvarn
