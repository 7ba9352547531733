#include "bench/program/painted.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <stdexcept>

namespace quelvarn::bench {

PaintWatch::PaintWatch(QAbstractItemView& view) : view_(view)
{
    view.viewport()->installEventFilter(this);
}

void PaintWatch::wait()
{
    constexpr qint64 DEADLINE = 300'000; // ms
    QElapsedTimer time;
    time.start();
    painted_ = false;
    while (!painted_) {
        QCoreApplication::processEvents();
        if (time.hasExpired(DEADLINE))
            throw std::runtime_error("the grid is not painted");
    }
    QCoreApplication::processEvents();
}

bool PaintWatch::eventFilter(QObject* receiver, QEvent* event)
{
    if (event->type() == QEvent::Paint && view_.model() != nullptr && view_.model()->rowCount() > 0)
        painted_ = true;
    return QObject::eventFilter(receiver, event);
}

} // namespace quelvarn::bench
