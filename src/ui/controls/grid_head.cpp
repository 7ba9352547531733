#include "ui/controls/grid_head.h"

#include "ui/value_text.h"

#include <QStyleOptionHeader>

#include <algorithm>
#include <cmath>

namespace quelvarn {

namespace {

constexpr int EDGES = 12; // Left and right of a caption, with the line beside it.

} // namespace

GridHead::GridHead(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    QFont bold = font(); // As the style sheet draws it: captions are measured by this font.
    bold.setBold(true);
    bold.setPointSizeF(8.25);
    setFont(bold);
    setStretchLastSection(true);
    setHighlightSections(false);
    setSectionsClickable(false);
    setMinimumSectionSize(40);
}

// What stays together: a line may end behind a blank and behind a stroke.
QStringList GridHead::parts(int section) const
{
    QStringList parts{QString()};
    for (const QChar letter : oneLine(model()->headerData(section, Qt::Horizontal).toString()).trimmed()) {
        parts.last() += letter;
        if (letter == u' ' || letter == u'/')
            parts.append(QString());
    }
    return parts;
}

// Rounded up: shortening counts parts of a pixel, too.
int GridHead::widthOf(const QString& text) const
{
    return static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(text.trimmed())));
}

int GridHead::leastWidth(int section) const
{
    int widest = 0;
    for (const QString& part : parts(section))
        widest = std::max(widest, widthOf(part));
    return std::max(widest + EDGES, minimumSectionSize());
}

QStringList GridHead::lines(int section) const
{
    const int room = sectionSize(section) - EDGES;
    QStringList lines;
    for (const QString& part : parts(section)) {
        const QString longer = lines.isEmpty() ? part : lines.last() + part;
        const bool fits = widthOf(longer) <= room;
        if (fits && !lines.isEmpty())
            lines.last() = longer;
        else
            lines.append(part);
    }
    for (QString& line : lines)
        line = fontMetrics().elidedText(line.trimmed(), Qt::ElideRight, room);
    return lines;
}

QSize GridHead::sizeHint() const
{
    QSize size = QHeaderView::sizeHint();
    qsizetype most = 1;
    for (int section = 0; section < count(); ++section)
        if (!isSectionHidden(section))
            most = std::max(most, lines(section).size());
    size.rheight() += static_cast<int>(most - 1) * fontMetrics().lineSpacing();
    return size;
}

void GridHead::initStyleOptionForIndex(QStyleOptionHeader* option, int section) const
{
    QHeaderView::initStyleOptionForIndex(option, section);
    option->text = lines(section).join(u'\n');
}

} // namespace quelvarn
