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

constexpr const char* ANSICHT = "qt_calendar_calendarview";

} // namespace

Kalender::Kalender(const char* name)
{
    setObjectName(QLatin1String(name));
    setLocale(QLocale(QLocale::German, QLocale::Germany));
    setFirstDayOfWeek(Qt::Monday);
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(ShortDayNames);
    setGridVisible(false);
    faerbe();
    // Its own signal for Enter comes with a double click, too, which is two clicks already.
    findChild<QTableView*>(QLatin1String(ANSICHT))->installEventFilter(this);
    connect(this, &QCalendarWidget::clicked, this, bewacht([this](const QDate& tag) { melde(tag); }));
}

void Kalender::melde(const QDate& tag)
{
    if (gewaehlt)
        gewaehlt(tag);
}

void Kalender::faerbe()
{
    QTextCharFormat tag;
    tag.setForeground(farbsatz().text);
    for (const auto wochentag : {Qt::Saturday, Qt::Sunday}) // Red is for warnings here.
        setWeekdayTextFormat(wochentag, tag);
    QTextCharFormat kopf;
    kopf.setForeground(farbsatz().gedaempft);
    kopf.setBackground(farbsatz().flaeche);
    setHeaderTextFormat(kopf);
    const auto pfeil = [this](const char* knopf, const char* bild) {
        findChild<QToolButton*>(QLatin1String(knopf))->setIcon(symbol(bild));
    };
    pfeil("qt_calendar_prevmonth", "left");
    pfeil("qt_calendar_nextmonth", "right");
}

void Kalender::changeEvent(QEvent* ereignis)
{
    QCalendarWidget::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange)
        faerbe();
}

bool Kalender::eventFilter(QObject* empfaenger, QEvent* ereignis)
{
    if (ereignis->type() == QEvent::KeyPress) {
        const auto* taste = static_cast<QKeyEvent*>(ereignis);
        const bool enter = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
        if (enter && taste->modifiers() == Qt::NoModifier) {
            Waechter::aktuell().fuehreAus([this] { melde(selectedDate()); });
            return true;
        }
    }
    return QCalendarWidget::eventFilter(empfaenger, ereignis);
}

} // namespace quelvarn
