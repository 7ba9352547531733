#pragma once

#include <QObject>
#include <QSize>

class QAbstractItemView;

namespace quelvarn::bench {

// Of the lists that are compared: that of the grid in the program's own window.
inline constexpr QSize FENSTER{560, 320};

// Tells when a view has drawn what a gesture has changed.
class Malwaechter : public QObject
{
public:
    explicit Malwaechter(QAbstractItemView& ansicht);

    // Runs the event loop until the view has been painted with rows in it and nothing is left to do. Throws when that
    // does not happen.
    void warte();

protected:
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

private:
    QAbstractItemView& ansicht_;
    bool gemalt_ = false;
};

} // namespace quelvarn::bench
