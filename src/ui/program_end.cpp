#include "ui/program_end.h"

#include "ui/adapters/boxes_qt.h"
#include "ui/adapters/patience_qt.h"
#include "ui/adapters/progress_qt.h"

#include <QApplication>
#include <QSessionManager>
#include <QWidget>

#include <utility>

namespace quelvarn {

namespace {

constexpr int PACE = 50; // milliseconds

} // namespace

ProgramEnd::ProgramEnd(QtBoxes& boxes, QtPatience& patience, QtProgress& progress)
    : boxes_(boxes), patience_(patience), progress_(progress)
{
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [this] { request(); }, Qt::DirectConnection);
    // The system does not wait for operations: on Windows the process is gone behind this.
    connect(
        qApp, &QCoreApplication::aboutToQuit, this, [this] { endNow(); }, Qt::DirectConnection);
}

void ProgramEnd::setWindow(QWidget& window, std::function<void()> unload)
{
    window_ = &window;
    unload_ = std::move(unload);
}

void ProgramEnd::request()
{
    if (std::exchange(requested_, true))
        return;
    leaveAlone();
    // Not a QTimer: those are held back while work runs, and that is what has to be given up.
    startTimer(PACE);
    step();
}

void ProgramEnd::timerEvent(QTimerEvent*)
{
    step();
}

void ProgramEnd::leaveAlone()
{
    boxes_.answerAlone();
    patience_.waitAlone();
}

// One thing at a time: what is closed goes back to the operation that showed it, and that may show the next one.
void ProgramEnd::step()
{
    if (QtPatience::isAsking())
        return patience_.giveUp();
    QWidget* inFront = QApplication::activePopupWidget();
    if (inFront == nullptr)
        inFront = QApplication::activeModalWidget();
    if (inFront == nullptr && progress_.atWork())
        return progress_.giveUp();
    if (inFront == nullptr)
        inFront = window_;
    if (inFront != nullptr)
        inFront->close();
}

void ProgramEnd::endNow()
{
    leaveAlone();
    if (unload_)
        unload_();
}

} // namespace quelvarn
