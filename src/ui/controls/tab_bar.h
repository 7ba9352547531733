#pragma once

#include <QTabBar>
#include <QTabWidget>

namespace quelvarn {

// Tabs that all stay in sight: where they need more room than there is, the yielding ones are
// shortened first, the widest of them before the others.
class Reiterleiste : public QTabBar
{
    Q_OBJECT

public:
    // Tabs from this one on yield.
    explicit Reiterleiste(int nachgiebigAb, QWidget* eltern = nullptr);

    QSize minimumSizeHint() const override;

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    int wunschbreite(int index) const;
    int hoechstbreite(int index) const;

    int nachgiebigAb_;
};

// A tab control with such a bar.
class Reiter : public QTabWidget
{
    Q_OBJECT

public:
    explicit Reiter(int nachgiebigAb, QWidget* eltern = nullptr) : QTabWidget(eltern)
    {
        setTabBar(new Reiterleiste(nachgiebigAb, this));
    }
};

} // namespace quelvarn
