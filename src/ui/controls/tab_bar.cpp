#include "ui/controls/tab_bar.h"

#include <QResizeEvent>

#include <algorithm>
#include <numeric>
#include <vector>

namespace quelvarn {

namespace {

constexpr int RAND = 12;
constexpr int MINDESTBREITE = 44;

// The width at which cutting every wider one makes all of them fit.
int gemeinsameGrenze(std::vector<int> breiten, int platz)
{
    std::sort(breiten.begin(), breiten.end());
    for (std::size_t i = 0; i < breiten.size(); ++i) {
        const int anteil = platz / static_cast<int>(breiten.size() - i);
        if (breiten[i] > anteil)
            return std::max(anteil, MINDESTBREITE);
        platz -= breiten[i];
    }
    return breiten.empty() ? 0 : breiten.back();
}

} // namespace

Reiterleiste::Reiterleiste(int nachgiebigAb, QWidget* eltern) : QTabBar(eltern), nachgiebigAb_(nachgiebigAb) {}

QSize Reiterleiste::minimumSizeHint() const
{
    return {MINDESTBREITE * count(), QTabBar::minimumSizeHint().height()};
}

int Reiterleiste::wunschbreite(int index) const
{
    const QString shown = tabText(index).replace(QStringLiteral("&&"), QStringLiteral("&"));
    return fontMetrics().horizontalAdvance(shown) + RAND;
}

QSize Reiterleiste::tabSizeHint(int index) const
{
    return {std::min(wunschbreite(index), hoechstbreite(index)), QTabBar::tabSizeHint(index).height()};
}

int Reiterleiste::hoechstbreite(int index) const
{
    std::vector<int> fest;
    std::vector<int> nachgiebig;
    for (int i = 0; i < count(); ++i)
        (i < nachgiebigAb_ ? fest : nachgiebig).push_back(wunschbreite(i));
    const int platz = parentWidget() != nullptr ? parentWidget()->width() : width();
    if (index < nachgiebigAb_)
        return gemeinsameGrenze(fest, platz - MINDESTBREITE * static_cast<int>(nachgiebig.size()));
    return gemeinsameGrenze(nachgiebig, platz - std::accumulate(fest.begin(), fest.end(), 0));
}

void Reiterleiste::resizeEvent(QResizeEvent* ereignis)
{
    QTabBar::resizeEvent(ereignis);
    if (ereignis->size().width() != ereignis->oldSize().width())
        setIconSize(iconSize()); // Measures the tabs anew.
}

} // namespace quelvarn
