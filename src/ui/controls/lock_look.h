#pragma once

class QGroupBox;
class QString;
class QWidget;

namespace quelvarn {

// A field that takes no choice now looks so, but can still be clicked: the click tells why.
void zeigeGesperrt(QWidget& feld, bool gesperrt);
// The frame around such fields says it in its title.
void zeigeGesperrt(QGroupBox& rahmen, const QString& titel, bool gesperrt);

} // namespace quelvarn
