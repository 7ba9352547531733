#pragma once

#include <QTabBar>
#include <QTabWidget>

namespace quelvarn {

// Tabs that all stay in sight: where they need more room than there is, the yielding ones are
// shortened first, the widest of them before the others.
class TabBar : public QTabBar
{
    Q_OBJECT

public:
    // Tabs from this one on yield.
    explicit TabBar(int yieldingFrom, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void resizeEvent(QResizeEvent* event) override;

private:
    int wishedWidth(int index) const;
    int greatestWidth(int index) const;

    int yieldingFrom_;
};

// A tab control with such a bar.
class TabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit TabWidget(int yieldingFrom, QWidget* parent = nullptr) : QTabWidget(parent)
    {
        setTabBar(new TabBar(yieldingFrom, this));
    }
};

} // namespace quelvarn
