#pragma once

#include <QLabel>

namespace quelvarn {

// A label of one line, also for a text of several, that shortens a text it has no room for; the tool tip then has the
// whole one.
class KurzLabel : public QLabel
{
    Q_OBJECT

public:
    explicit KurzLabel(QWidget* eltern = nullptr, Qt::TextElideMode auslassung = Qt::ElideRight);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    // As much of the text as there is room for.
    QString shownText() const;
    void paintEvent(QPaintEvent* ereignis) override;
    bool event(QEvent* ereignis) override;

private:
    Qt::TextElideMode auslassung_;
};

} // namespace quelvarn
