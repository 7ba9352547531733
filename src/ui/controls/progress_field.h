#pragma once

#include <QWidget>

#include <cstddef>

class QAbstractButton;
class QLabel;
class QProgressBar;

namespace quelvarn {

// What a piece of work is, how far it has come, and a button that gives it up. Hidden while nothing runs. A page that
// has such a field lends it to the work started there.
class Fortschrittsfeld : public QWidget
{
    Q_OBJECT

public:
    Fortschrittsfeld(const char* balken, const char* text, const char* abbrechen);
    ~Fortschrittsfeld() override;

    // The field lent by the page in front, nullptr for none.
    static Fortschrittsfeld* geliehenes();
    void setzeVerliehen(bool verliehen) { verliehen_ = verliehen; }

    void setzeText(const QString& text);
    void zeigeStand(std::size_t getan, std::size_t gesamt);
    QAbstractButton& abbrechen() { return *abbrechen_; }

private:
    QLabel* text_;
    QProgressBar* balken_;
    QAbstractButton* abbrechen_;
    bool verliehen_ = false;
};

} // namespace quelvarn
