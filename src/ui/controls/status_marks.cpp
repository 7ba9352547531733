#include "ui/controls/status_marks.h"

#include "ui/theme/colours.h"

#include <QPainter>

namespace quelvarn {

void StatusDot::setColour(unsigned rgb)
{
    rgb_ = rgb;
    update();
}

void StatusDot::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(statusDot(rgb_));
    painter.drawEllipse(QRectF(1, (height() - 8) / 2.0, 8, 8));
}

void StatusCaption::setColour(unsigned rgb)
{
    rgb_ = rgb;
    update();
}

void StatusCaption::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(statusText(rgb_));
    painter.drawText(contentsRect(), static_cast<int>(alignment()), shownText());
}

} // namespace quelvarn
