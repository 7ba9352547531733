#pragma once

#include <QWidget>

#include <cstddef>

class QAbstractButton;
class QLabel;
class QProgressBar;

namespace quelvarn {

// What a piece of work is, how far it has come, and a button that gives it up. Hidden while nothing runs. A page that
// has such a field lends it to the work started there.
class ProgressField : public QWidget
{
    Q_OBJECT

public:
    ProgressField(const char* bar, const char* text, const char* cancel);
    ~ProgressField() override;

    // The field lent by the page in front, nullptr for none.
    static ProgressField* borrowed();
    void setLent(bool lent) { lent_ = lent; }

    void setText(const QString& text);
    void showStand(std::size_t done, std::size_t total);
    QAbstractButton& cancel() { return *cancel_; }

private:
    QLabel* text_;
    QProgressBar* bar_;
    QAbstractButton* cancel_;
    bool lent_ = false;
};

} // namespace quelvarn
