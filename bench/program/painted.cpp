#include "bench/program/painted.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <stdexcept>

namespace quelvarn::bench {

Malwaechter::Malwaechter(QAbstractItemView& ansicht) : ansicht_(ansicht)
{
    ansicht.viewport()->installEventFilter(this);
}

void Malwaechter::warte()
{
    constexpr qint64 FRIST = 300'000; // ms
    QElapsedTimer zeit;
    zeit.start();
    gemalt_ = false;
    while (!gemalt_) {
        QCoreApplication::processEvents();
        if (zeit.hasExpired(FRIST))
            throw std::runtime_error("the grid is not painted");
    }
    QCoreApplication::processEvents();
}

bool Malwaechter::eventFilter(QObject* empfaenger, QEvent* ereignis)
{
    if (ereignis->type() == QEvent::Paint && ansicht_.model() != nullptr && ansicht_.model()->rowCount() > 0)
        gemalt_ = true;
    return QObject::eventFilter(empfaenger, ereignis);
}

} // namespace quelvarn::bench
