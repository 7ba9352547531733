#pragma once

class QGroupBox;
class QString;
class QWidget;

namespace quelvarn {

// A field that takes no choice now looks so, but can still be clicked: the click tells why.
void showLocked(QWidget& field, bool locked);
// The frame around such fields says it in its title.
void showLocked(QGroupBox& frame, const QString& title, bool locked);

} // namespace quelvarn
