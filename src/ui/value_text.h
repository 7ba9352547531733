#pragma once

#include <QString>

namespace quelvarn {

// Values as the database has them, made fit for the places that show them. The data itself stays as it is.

// For places of one line: each line break is a blank. No line of a screen holds more than the first thousand letters.
QString oneLine(const QString& value);
// For laid out text of several lines: every kind of line break is the layout's own.
QString asLines(QString value);
// For buttons, tabs and menus: one line, and no letter of the value becomes a shortcut.
QString asCaption(const QString& value);
// For tool tips: lines that fit on a screen, and not more of them than one reads there.
QString asTip(const QString& value);
// At most this many letters, and behind them how many more there are.
QString beginning(const QString& value, qsizetype letters);
// Where text may be cut at or before this place without cutting a letter in two.
qsizetype cutBefore(const QString& text, qsizetype place);

} // namespace quelvarn
