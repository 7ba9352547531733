#pragma once

#include <QObject>

#include <functional>

class QTimerEvent;
class QWidget;

namespace quelvarn {

class QtProgress;
class QtBoxes;
class QtPatience;

// Ends the program for somebody who does not sit in front of it: the system at a logout, or a signal. What waits for
// an answer gets one by itself, running work is given up, and the window is then closed as by a person, so that the
// pages write their rows.
class ProgramEnd final : public QObject
{
    Q_OBJECT

public:
    // Listens for the end of the desktop's session as soon as it is made.
    ProgramEnd(QtBoxes& boxes, QtPatience& patience, QtProgress& progress);

    // `unload` is what the closing of the window comes to; called without the window in the last moment that the
    // system grants.
    void setWindow(QWidget& window, std::function<void()> unload);
    // Ends at once when nothing runs, else as soon as it has come to its end.
    void request();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void leaveAlone();
    void step();
    void endNow();

    QtBoxes& boxes_;
    QtPatience& patience_;
    QtProgress& progress_;
    QWidget* window_ = nullptr;
    std::function<void()> unload_;
    bool requested_ = false;
};

} // namespace quelvarn
