#include "ui/controls/elided_label.h"

#include "ui/value_text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace quelvarn {

KurzLabel::KurzLabel(QWidget* eltern, Qt::TextElideMode auslassung) : QLabel(eltern), auslassung_(auslassung)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize KurzLabel::sizeHint() const
{
    ensurePolished();
    const QMargins edges = contentsMargins() + margin();
    const qreal width = std::ceil(QFontMetricsF(font()).horizontalAdvance(oneLine(text())));
    // Never nothing between the margins: with a new style the toolkit would forget them.
    return QSize(std::max(static_cast<int>(width), 1), fontMetrics().height()).grownBy(edges);
}

QSize KurzLabel::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    return {std::min(whole.width(), fontMetrics().averageCharWidth() * 3), whole.height()};
}

QString KurzLabel::shownText() const
{
    const int room = contentsRect().width() - 2 * margin();
    return QFontMetricsF(font()).elidedText(oneLine(text()), auslassung_, room);
}

void KurzLabel::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect platz = contentsRect().marginsRemoved({margin(), margin(), margin(), margin()});
    style()->drawItemText(&painter, platz, static_cast<int>(alignment()), palette(), isEnabled(), shownText(),
                          foregroundRole());
}

bool KurzLabel::event(QEvent* ereignis)
{
    if (ereignis->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const bool gekuerzt = shownText() != oneLine(text());
        QToolTip::showText(static_cast<QHelpEvent*>(ereignis)->globalPos(), gekuerzt ? asTip(text()) : QString(), this);
        return true;
    }
    return QLabel::event(ereignis);
}

} // namespace quelvarn
