#pragma once

#include <QHeaderView>

namespace quelvarn {

// The head of a grid. A caption that has no room in one line stands in several; a word that is wider than its column
// is shortened: under a style sheet the header itself would cut it off.
class GridHead : public QHeaderView
{
    Q_OBJECT

public:
    explicit GridHead(QWidget* parent);

    QSize sizeHint() const override;
    // The width below which a word of the caption is shortened.
    int leastWidth(int section) const;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override;

private:
    QStringList parts(int section) const;
    int widthOf(const QString& text) const;
    QStringList lines(int section) const;
};

} // namespace quelvarn
