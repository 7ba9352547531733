#pragma once

#include <QLabel>

namespace quelvarn {

// A label of one line that shortens a text it has no room for; the tool tip then has the whole one.
class KurzLabel : public QLabel
{
    Q_OBJECT

public:
    explicit KurzLabel(QWidget* eltern = nullptr, Qt::TextElideMode auslassung = Qt::ElideRight);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    bool event(QEvent* ereignis) override;

private:
    Qt::TextElideMode auslassung_;
};

} // namespace quelvarn
