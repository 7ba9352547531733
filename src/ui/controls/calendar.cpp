#include "ui/controls/calendar.h"

#include "ui/guard.h"
#include "ui/theme/colours.h"
#include "ui/theme/icons.h"

#include <QKeyEvent>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

namespace quelvarn {

namespace {

constexpr const char* VIEWER = "qt_calendar_calendarview";

} // namespace

Calendar::Calendar(const char* name)
{
    setObjectName(QLatin1String(name));
    setLocale(QLocale(QLocale::German, QLocale::Germany));
    setFirstDayOfWeek(Qt::Monday);
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(ShortDayNames);
    setGridVisible(false);
    paint();
    // Its own signal for Enter comes with a double click, too, which is two clicks already.
    findChild<QTableView*>(QLatin1String(VIEWER))->installEventFilter(this);
    connect(this, &QCalendarWidget::clicked, this, guardedSlot([this](const QDate& day) { notify(day); }));
}

void Calendar::notify(const QDate& day)
{
    if (chosen)
        chosen(day);
}

void Calendar::paint()
{
    QTextCharFormat day;
    day.setForeground(colourSet().text);
    for (const auto weekday : {Qt::Saturday, Qt::Sunday}) // Red is for warnings here.
        setWeekdayTextFormat(weekday, day);
    QTextCharFormat heading;
    heading.setForeground(colourSet().muted);
    heading.setBackground(colourSet().area);
    setHeaderTextFormat(heading);
    const auto arrow = [this](const char* button, const char* picture) {
        findChild<QToolButton*>(QLatin1String(button))->setIcon(icon(picture));
    };
    arrow("qt_calendar_prevmonth", "left");
    arrow("qt_calendar_nextmonth", "right");
}

void Calendar::changeEvent(QEvent* event)
{
    QCalendarWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paint();
}

bool Calendar::eventFilter(QObject* receiver, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (enter && key->modifiers() == Qt::NoModifier) {
            SlotGuard::current().execute([this] { notify(selectedDate()); });
            return true;
        }
    }
    return QCalendarWidget::eventFilter(receiver, event);
}

} // namespace quelvarn
