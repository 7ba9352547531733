#include "ui/controls/elided_label.h"

#include "ui/value_text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace quelvarn {

ShortLabel::ShortLabel(QWidget* parent, Qt::TextElideMode elision) : QLabel(parent), elision_(elision)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize ShortLabel::sizeHint() const
{
    ensurePolished();
    const QMargins edges = contentsMargins() + margin();
    const qreal width = std::ceil(QFontMetricsF(font()).horizontalAdvance(oneLine(text())));
    // Never nothing between the margins: with a new style the toolkit would forget them.
    return QSize(std::max(static_cast<int>(width), 1), fontMetrics().height()).grownBy(edges);
}

QSize ShortLabel::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    return {std::min(whole.width(), fontMetrics().averageCharWidth() * 3), whole.height()};
}

QString ShortLabel::shownText() const
{
    const int room = contentsRect().width() - 2 * margin();
    return QFontMetricsF(font()).elidedText(oneLine(text()), elision_, room);
}

void ShortLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect place = contentsRect().marginsRemoved({margin(), margin(), margin(), margin()});
    style()->drawItemText(&painter, place, static_cast<int>(alignment()), palette(), isEnabled(), shownText(),
                          foregroundRole());
}

bool ShortLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const bool shortened = shownText() != oneLine(text());
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), shortened ? asTip(text()) : QString(), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace quelvarn
