#pragma once

#include <QCalendarWidget>

#include <functional>

namespace quelvarn {

// A German month view in the program's look. A click on a day picks it, or Enter; moving about picks nothing.
class Kalender : public QCalendarWidget
{
    Q_OBJECT

public:
    explicit Kalender(const char* name);

    std::function<void(const QDate& tag)> gewaehlt;

protected:
    void changeEvent(QEvent* ereignis) override;
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

private:
    void faerbe();
    void melde(const QDate& tag);
};

} // namespace quelvarn
