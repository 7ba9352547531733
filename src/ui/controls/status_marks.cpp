#include "ui/controls/status_marks.h"

#include "ui/theme/colours.h"

#include <QPainter>

namespace quelvarn {

void Statuspunkt::setzeFarbe(unsigned rgb)
{
    rgb_ = rgb;
    update();
}

void Statuspunkt::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(statusPunkt(rgb_));
    painter.drawEllipse(QRectF(1, (height() - 8) / 2.0, 8, 8));
}

void Statustext::setzeFarbe(unsigned rgb)
{
    rgb_ = rgb;
    update();
}

void Statustext::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter painter(this);
    painter.setPen(statusText(rgb_));
    painter.drawText(contentsRect(), static_cast<int>(alignment()), shownText());
}

} // namespace quelvarn
