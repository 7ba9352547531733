#include "ui/controls/tab_bar.h"

#include <QResizeEvent>

#include <algorithm>
#include <numeric>
#include <vector>

namespace quelvarn {

namespace {

constexpr int MARGIN = 12;
constexpr int MINIMUM_WIDTH = 44;

// The width at which cutting every wider one makes all of them fit.
int commonLimit(std::vector<int> widths, int place)
{
    std::sort(widths.begin(), widths.end());
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const int share = place / static_cast<int>(widths.size() - i);
        if (widths[i] > share)
            return std::max(share, MINIMUM_WIDTH);
        place -= widths[i];
    }
    return widths.empty() ? 0 : widths.back();
}

} // namespace

TabBar::TabBar(int yieldingFrom, QWidget* parent) : QTabBar(parent), yieldingFrom_(yieldingFrom) {}

QSize TabBar::minimumSizeHint() const
{
    return {MINIMUM_WIDTH * count(), QTabBar::minimumSizeHint().height()};
}

int TabBar::wishedWidth(int index) const
{
    const QString shown = tabText(index).replace(QStringLiteral("&&"), QStringLiteral("&"));
    return fontMetrics().horizontalAdvance(shown) + MARGIN;
}

QSize TabBar::tabSizeHint(int index) const
{
    return {std::min(wishedWidth(index), greatestWidth(index)), QTabBar::tabSizeHint(index).height()};
}

int TabBar::greatestWidth(int index) const
{
    std::vector<int> fest;
    std::vector<int> yielding;
    for (int i = 0; i < count(); ++i)
        (i < yieldingFrom_ ? fest : yielding).push_back(wishedWidth(i));
    const int place = parentWidget() != nullptr ? parentWidget()->width() : width();
    if (index < yieldingFrom_)
        return commonLimit(fest, place - MINIMUM_WIDTH * static_cast<int>(yielding.size()));
    return commonLimit(yielding, place - std::accumulate(fest.begin(), fest.end(), 0));
}

void TabBar::resizeEvent(QResizeEvent* event)
{
    QTabBar::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        setIconSize(iconSize()); // Measures the tabs anew.
}

} // namespace quelvarn
