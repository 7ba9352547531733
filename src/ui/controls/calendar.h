#pragma once

#include <QCalendarWidget>

#include <functional>

namespace quelvarn {

// A German month view in the program's look. A click on a day picks it, or Enter; moving about picks nothing.
class Calendar : public QCalendarWidget
{
    Q_OBJECT

public:
    explicit Calendar(const char* name);

    std::function<void(const QDate& day)> chosen;

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void paint();
    void notify(const QDate& day);
};

} // namespace quelvarn
