#include "ui/controls/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace quelvarn {

KurzLabel::KurzLabel(QWidget* eltern, Qt::TextElideMode auslassung) : QLabel(eltern), auslassung_(auslassung)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize KurzLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 3, QLabel::minimumSizeHint().height()};
}

void KurzLabel::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect platz = contentsRect().marginsRemoved({margin(), margin(), margin(), margin()});
    style()->drawItemText(&painter, platz, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), auslassung_, platz.width()), foregroundRole());
}

bool KurzLabel::event(QEvent* ereignis)
{
    if (ereignis->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const bool gekuerzt = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
        QToolTip::showText(static_cast<QHelpEvent*>(ereignis)->globalPos(), gekuerzt ? text().trimmed() : QString(),
                           this);
        return true;
    }
    return QLabel::event(ereignis);
}

} // namespace quelvarn
