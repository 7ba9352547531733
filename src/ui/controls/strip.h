#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;

namespace quelvarn {

// A horizontal band with a line at its edge: head line, tool bar or status bar.
class Streifen : public QFrame
{
    Q_OBJECT

public:
    enum class Art { Kopfzeile, Leiste, Statuszeile };

    Streifen(Art art, const char* name, QWidget* eltern = nullptr);

    QHBoxLayout& reihe() { return *reihe_; }

private:
    QHBoxLayout* reihe_;
};

// What a label is for; the style sheet knows the look of each.
enum class Rolle { Titel, Kopf, Beschriftung, Klein };
QLabel* beschriftung(const QString& text, Rolle rolle, const QString& name = {});
void setzeRolle(QLabel& label, Rolle rolle);
// What the label says now is out of the ordinary: it stands on the ground of notes.
void showNote(QLabel& label, bool note);
QFrame* trennlinie();

} // namespace quelvarn
