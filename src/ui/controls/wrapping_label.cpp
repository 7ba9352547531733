#include "ui/controls/wrapping_label.h"

#include <QPainter>

namespace quelvarn {

namespace {

constexpr int UMBRUCH = Qt::TextWordWrap | Qt::TextWrapAnywhere | Qt::AlignLeft | Qt::AlignTop;
constexpr int VIEL_PLATZ = 10000;

} // namespace

Umbruchlabel::Umbruchlabel(QWidget* eltern) : QLabel(eltern)
{
    setTextFormat(Qt::PlainText);
    QSizePolicy regel(QSizePolicy::Preferred, QSizePolicy::Preferred);
    regel.setHeightForWidth(true);
    setSizePolicy(regel);
}

int Umbruchlabel::heightForWidth(int breite) const
{
    const QRect platz = fontMetrics().boundingRect({0, 0, breite, VIEL_PLATZ}, UMBRUCH, text());
    return std::max(platz.height(), fontMetrics().height());
}

QSize Umbruchlabel::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 24, fontMetrics().height()};
}

QSize Umbruchlabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, fontMetrics().height()};
}

void Umbruchlabel::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), UMBRUCH, text());
}

} // namespace quelvarn
