#include "ui/controls/wrapping_label.h"

#include "ui/value_text.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace quelvarn {

namespace {

// Lines may end behind the backslashes of a path, but not before them.
QString withBreaks(QString text)
{
    return text.replace(u'\\', QStringLiteral("\u2060\\\u200B"));
}

// Breaks the text into lines of this width; its height is the answer.
qreal wrap(QTextLayout& set, int width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    set.setTextOption(option);
    qreal height = 0;
    set.beginLayout();
    for (QTextLine row = set.createLine(); row.isValid(); row = set.createLine()) {
        row.setLineWidth(width);
        row.setPosition({0, height});
        height += row.height();
    }
    set.endLayout();
    return height;
}

} // namespace

WrappingLabel::WrappingLabel(qsizetype letters) : letters_(letters)
{
    setTextFormat(Qt::PlainText);
    QSizePolicy rule(QSizePolicy::Preferred, QSizePolicy::Preferred);
    rule.setHeightForWidth(true);
    setSizePolicy(rule);
    setContentsMargins(OVERHANG, 0, 0, 0);
}

QString WrappingLabel::shownText() const
{
    return withBreaks(asLines(beginning(text(), letters_)));
}

int WrappingLabel::heightForWidth(int width) const
{
    QTextLayout set(shownText(), font());
    const int place = width - contentsMargins().left() - contentsMargins().right();
    return std::max(static_cast<int>(std::ceil(wrap(set, place))), fontMetrics().height());
}

QSize WrappingLabel::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 24, fontMetrics().height()};
}

QSize WrappingLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, fontMetrics().height()};
}

void WrappingLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    QTextLayout set(shownText(), font(), this);
    wrap(set, contentsRect().width());
    set.draw(&painter, contentsRect().topLeft());
}

} // namespace quelvarn
