#pragma once

#include <QObject>
#include <QSize>

class QAbstractItemView;

namespace quelvarn::bench {

// Of the lists that are compared: that of the grid in the program's own window.
inline constexpr QSize WINDOW{560, 320};

// Tells when a view has drawn what a gesture has changed.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QAbstractItemView& view);

    // Runs the event loop until the view has been painted with rows in it and nothing is left to do. Throws when that
    // does not happen.
    void wait();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QAbstractItemView& view_;
    bool painted_ = false;
};

} // namespace quelvarn::bench
