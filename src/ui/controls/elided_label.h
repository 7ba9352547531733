#pragma once

#include <QLabel>

namespace quelvarn {

// A label of one line, also for a text of several, that shortens a text it has no room for; the tool tip then has the
// whole one.
class ShortLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ShortLabel(QWidget* parent = nullptr, Qt::TextElideMode elision = Qt::ElideRight);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    // As much of the text as there is room for.
    QString shownText() const;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    Qt::TextElideMode elision_;
};

} // namespace quelvarn
