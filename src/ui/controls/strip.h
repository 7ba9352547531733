#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;

namespace quelvarn {

// A horizontal band with a line at its edge: head line, tool bar or status bar.
class Strip : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { HeadingRow, Bar, StatusRow };

    Strip(Kind kind, const char* name, QWidget* parent = nullptr);

    QHBoxLayout& layoutRow() { return *layoutRow_; }

private:
    QHBoxLayout* layoutRow_;
};

// What a label is for; the style sheet knows the look of each.
enum class TextRole { Titel, Heading, Caption, Small };
QLabel* caption(const QString& text, TextRole textRole, const QString& name = {});
void setRole(QLabel& label, TextRole textRole);
// What the label says now is out of the ordinary: it stands on the ground of notes.
void showNote(QLabel& label, bool note);
QFrame* separatorLine();

} // namespace quelvarn
