#include "ui/controls/wrapping_label.h"

#include "ui/value_text.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace quelvarn {

namespace {

// Lines may end behind the backslashes of a path, but not before them.
QString mitBruchstellen(QString text)
{
    return text.replace(u'\\', QStringLiteral("\u2060\\\u200B"));
}

// Breaks the text into lines of this width; its height is the answer.
qreal brichUm(QTextLayout& satz, int breite)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    satz.setTextOption(option);
    qreal hoehe = 0;
    satz.beginLayout();
    for (QTextLine zeile = satz.createLine(); zeile.isValid(); zeile = satz.createLine()) {
        zeile.setLineWidth(breite);
        zeile.setPosition({0, hoehe});
        hoehe += zeile.height();
    }
    satz.endLayout();
    return hoehe;
}

} // namespace

Umbruchlabel::Umbruchlabel(qsizetype letters) : letters_(letters)
{
    setTextFormat(Qt::PlainText);
    QSizePolicy regel(QSizePolicy::Preferred, QSizePolicy::Preferred);
    regel.setHeightForWidth(true);
    setSizePolicy(regel);
    setContentsMargins(UEBERHANG, 0, 0, 0);
}

QString Umbruchlabel::shownText() const
{
    return mitBruchstellen(asLines(beginning(text(), letters_)));
}

int Umbruchlabel::heightForWidth(int breite) const
{
    QTextLayout satz(shownText(), font());
    const int platz = breite - contentsMargins().left() - contentsMargins().right();
    return std::max(static_cast<int>(std::ceil(brichUm(satz, platz))), fontMetrics().height());
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
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    QTextLayout satz(shownText(), font(), this);
    brichUm(satz, contentsRect().width());
    satz.draw(&painter, contentsRect().topLeft());
}

} // namespace quelvarn
